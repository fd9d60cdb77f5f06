// QmExportStp: the current model, a manufacturing model as its assembly, in one STEP file.
#include "export/drawings/export_stp.h"

#include "export/drawings/single_export.h"
#include "export/files/export_record.h"
#include "frame/folders/known_folders.h"
#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/model_name.h"
#include "frame/text/fixed_text.h"
#include "toolkit/export.h"
#include "toolkit/status.h"

namespace qm {
namespace {

ProError WriteStep(ProMdl model, const std::wstring& path) {
  ProPath file = {};
  if (!FillFixedText(path, file)) return PRO_TK_LINE_TOO_LONG;
  return ProOutputFileWrite(model, PRO_STEP_FILE, file, nullptr, nullptr, nullptr, nullptr);
}

}  // namespace

ProError QmExportStp() {
  const auto current = CurrentModelOrAssembly();
  if (!current) {
    LogOutcome("nothing exported, no current model");
    return PRO_TK_E_NOT_FOUND;
  }
  const auto name = ModelName(current->model);
  if (!name) return PRO_TK_GENERAL_ERROR;
  const auto folder =
      ExportFolder(L"QmExportStpDir", L"请选择STP文件导出位置", OtherSetting::kAsks);
  if (!folder) return PRO_TK_USER_ABORT;
  const std::wstring path = PathIn(*folder, *name + L".stp");
  ExportRecord record;
  record.Write({path, {}, {}}, [&] { return WriteStep(current->model, path); });
  const ProError status = record.Tell();
  // Deliberately always: that the file is missing stands before it and in the run log.
  DisplayNote("STP model has exported");
  return status;
}

}  // namespace qm
