// SetBendTable: applies a bend table that the user picks to each sheet-metal part, and regenerates
// those that were reached through an assembly.
#include "params/assign/set_bend_table.h"

#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "params/assign/part_file.h"
#include "toolkit/properties.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kFolderOption[] = L"pro_sheet_met_dir";
constexpr PartFileQuestion kQuestion = {kFolderOption, L"请选择折弯表", L"*.bnd"};
constexpr PartKind kSheetMetalParts = {ComponentKind::kSheetMetal, L"当前模型中没有钣金件",
                                       L"未找到钣金件", L"当前模型中没有子钣金件",
                                       L"未找到子钣金件"};

// Deliberately left so for the rest of the host's session.
ProError SetFolder(const std::wstring& folder) {
  ProName option = {};
  ProPath value = {};
  if (!FillFixedText(kFolderOption, option) || !FillFixedText(folder, value)) {
    return PRO_TK_LINE_TOO_LONG;
  }
  return ProConfigoptSet(option, value);
}

bool ApplyTo(ProMdl part, HostName table, bool in_assembly) {
  const ProError applied = ProSmtPartBendtableApply(part, table.name, PRO_B_TRUE);
  if (!Ok(applied)) LogFailure(part, "ProSmtPartBendtableApply", applied);
  if (!in_assembly) return Ok(applied);
  const ProError regenerated = ProSolidRegenerate(part, kPlainRegeneration);
  if (!Ok(regenerated)) LogFailure(part, "ProSolidRegenerate", regenerated);
  return Ok(applied) && Ok(regenerated);
}

}  // namespace

ProError SetBendTable() {
  const auto file = AskPartFile(kQuestion);
  if (!file) return PRO_TK_USER_ABORT;
  // Tables are read by name: one of another folder would be another one.
  const ProError set = SetFolder(file->folder);
  if (!Ok(set)) {
    LogOutcome("nothing done, the bend table's folder cannot be set");
    return set;
  }
  const auto choice = ForEachPart(kSheetMetalParts, [&](ProMdl part, bool in_assembly) {
    return ApplyTo(part, file->name, in_assembly);
  });
  TellEnd(choice, L"\t钣金件批量折弯表设置完成\t");
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
