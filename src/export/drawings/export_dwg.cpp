// QmExportDwg: as many DWG files as the current drawing has sheets. Deliberately the current sheet
// is not changed between them, and the host adds the extension.
#include "export/drawings/export_dwg.h"

#include "export/drawings/export_drivers.h"
#include "export/drawings/single_export.h"
#include "export/files/export_record.h"
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
  const SheetFiles files = FilesOfSheets(drawing, *folder);
  ExportRecord record;
  for (const std::wstring& path : files.paths) {
    const ExportRecord::File file = {path + kExtension, {}, {}};
    if (files.trouble != nullptr) {
      record.AddUnwritten(file, files.trouble);
    } else {
      record.Write(file, [&] { return WriteDwg(drawing, path); });
    }
  }
  return record.Tell();
}

}  // namespace qm
