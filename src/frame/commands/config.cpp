// QmConfig: the settings dialog, filled from the file when it opens, written back when the user
// presses save.
#include "frame/commands/config.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "frame/dialogs/dialog.h"
#include "frame/dialogs/file_choice.h"
#include "frame/dialogs/stored_fields.h"
#include "frame/messages/run_log.h"
#include "frame/settings/config.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr char kDialog[] = "QmConfig";

// Radio groups in the order they are filled. Their names are the settings' names, and a setting's
// value is the name of the selected button.
constexpr const char* kOptions[] = {
    "SetLastDir",      "AsmAssembly",      "PrtAssembly",
    "SmtAssembly",     "RmbDisable",       "TweViewsUseAutoMainView",
    "CompCopyAutoNum", "QmRandomColorOpt", "QmExportDwgDIr",
    "QmExportPdfDIr",  "QmExportStpDir",   "QmCountForInstance",
};

// The same in the order they are written, which is the order of a new file's sections.
constexpr const char* kOptionsAsSaved[] = {
    "SetLastDir",       "AsmAssembly",        "PrtAssembly",    "SmtAssembly",
    "CompCopyAutoNum",  "QmExportDwgDIr",     "QmExportPdfDIr", "QmExportStpDir",
    "QmRandomColorOpt", "QmCountForInstance", "RmbDisable",     "TweViewsUseAutoMainView",
};
static_assert(std::is_permutation(std::begin(kOptions), std::end(kOptions),
                                  std::begin(kOptionsAsSaved), std::end(kOptionsAsSaved),
                                  [](std::string_view a, std::string_view b) { return a == b; }));

struct TemplateRow {
  // Input panel, and name of the setting.
  const char* panel;
  const char* button;
  const wchar_t* title;
};

// clang-format off
constexpr TemplateRow kTemplates[] = {
    {"A0Asmpath",  "SelA0Asm",  L"请选择A0组件模板"},
    {"A0Prtpath",  "SelA0Prt",  L"请选择A0零件模板"},
    {"A1Asmpath",  "SelA1Asm",  L"请选择A1组件模板"},
    {"A1Prtpath",  "SelA1Prt",  L"请选择A1零件模板"},
    {"A2Asmpath",  "SelA2Asm",  L"请选择A2组件模板"},
    {"A2Prtpath",  "SelA2Prt",  L"请选择A2零件模板"},
    {"A3Asmpath",  "SelA3Asm",  L"请选择A3组件模板"},
    {"A3Prtpath",  "SelA3Prt",  L"请选择A3零件模板"},
    {"A4Asmpath",  "SelA4Asm",  L"请选择A4组件模板"},
    {"A4Prtpath",  "SelA4Prt",  L"请选择A4零件模板"},
    {"A4HAsmpath", "SelA4HAsm", L"请选择A4横向组件模板"},
    {"A4HPrtpath", "SelA4HPrt", L"请选择A4横向零件模板"},
};
// clang-format on

StoredField Option(const char* option) {
  return {option, FieldKind::kRadio, kValueKey};
}
StoredField Template(const TemplateRow& row) {
  return {row.panel, FieldKind::kInput, kPathKey};
}

void Save(const DialogView& dialog, StoredFields& fields) {
  CommandLog log("save");
  const std::wstring path = ConfigPath(kConfigFile);
  SaveTally tally;
  for (const char* const option : kOptionsAsSaved) {
    fields.Save(dialog, Option(option), path, &tally);
  }
  for (const TemplateRow& row : kTemplates) fields.Save(dialog, Template(row), path, &tally);
  NoteSaved(tally, path);
}

void PickTemplate(const DialogView&, const TemplateRow& row) {
  const auto path = PickDrawingFile(row.title, L"*.drw");
  if (!path) return;
  const ProError status = DialogView(kDialog).SetInputValue(row.panel, *path);
  if (Ok(status)) return;
  LogFailure(std::string(row.panel) + " does not show the chosen file: the host answered " +
             StatusName(status));
}

void Bind(const Dialog& dialog, StoredFields& fields) {
  dialog.BindButton<&Save>("save", fields);
  for (const TemplateRow& row : kTemplates) dialog.BindButton<&PickTemplate>(row.button, row);
  dialog.BindClose();
}

// An empty value selects no button.
void Fill(const Dialog& dialog, StoredFields& fields) {
  const std::wstring path = ConfigPath(kConfigFile);
  for (const char* const option : kOptions) fields.Fill(dialog, Option(option), path);
  for (const TemplateRow& row : kTemplates) fields.Fill(dialog, Template(row), path);
}

}  // namespace

ProError QmConfig() {
  StoredFields fields;
  return RunDialog(kDialog, [&](const Dialog& dialog) {
    Bind(dialog, fields);
    Fill(dialog, fields);
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
