// QmExportDwg: as many DWG files as the current drawing has sheets. Deliberately the current sheet
// is not changed between them, and the host adds the extension.
#include "export/drawings/export_dwg.h"

#include "export/drawings/export_drivers.h"
#include "export/drawings/single_export.h"
#include "export/files/export_record.h"
#include "frame/folders/known_folders.h"
#include "frame/models/model_name.h"
#include "frame/text/fixed_text.h"
#include "toolkit/export.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kExtension[] = L".dwg";

ProError WriteDwg(ProMdl drawing, const std::wstring& path) {
  ProPath file = {};
  if (!FillFixedText(path, file)) return PRO_TK_LINE_TOO_LONG;
  return Pro2dExport(PRO_DWG_FILE, file, drawing, nullptr);
}

}  // namespace

ProError QmExportDwg() {
  const ProMdl drawing = ModelToExport();
  if (drawing == nullptr) return PRO_TK_E_NOT_FOUND;
  ChooseDwgRelease();
  const auto folder =
      ExportFolder(L"QmExportDwgDIr", L"请选择DWG文件导出位置", OtherSetting::kEndsCommand);
  if (!folder) return PRO_TK_USER_ABORT;
  const auto name = ModelName(drawing);
  const auto count = CountSheets(drawing);
  if (!name || !count) return PRO_TK_GENERAL_ERROR;
  const std::wstring path = PathIn(*folder, *name);
  ExportRecord record;
  for (int number = 1; number <= *count; ++number) {
    const std::wstring file = PathOfFile(path, number, *count);
    record.Write({file + kExtension, {}, {}}, [&] { return WriteDwg(drawing, file); });
  }
  return record.Tell();
}

}  // namespace qm
