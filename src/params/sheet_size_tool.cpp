// Looks up the drawings of the target models and writes their sheet size parameter.
#include "params/sheet_size_tool.h"

#include "frame/messages/run_log.h"
#include "frame/models/host_param.h"
#include "params/param_batch.h"
#include "params/param_settings.h"
#include "toolkit/drawing.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr int kFirstSheet = 1;

// Empty when there is no such drawing or its sheet cannot be read.
std::wstring SheetSize(const ParamTarget& target) {
  HostName name(target.name);
  ProMdl drawing = nullptr;
  ProError status = ProMdlRetrieve(name.name, PRO_MDL_DRAWING, &drawing);
  if (!Ok(status) || drawing == nullptr) {
    // Most models have no drawing; anything else is a failure.
    if (status != PRO_TK_E_NOT_FOUND) LogFailure(target.model, "ProMdlRetrieve", status);
    return {};
  }
  ProName size{};
  ProMatrix transform{};
  status = ProDrawingSheetTrfGet(drawing, kFirstSheet, size, transform);
  if (!Ok(status)) {
    LogFailure(target.model, "ProDrawingSheetTrfGet", status);
    return {};
  }
  size[PRO_NAME_SIZE - 1] = L'\0';
  return size;
}

// False when the model is left alone.
bool WriteSheetSize(const ParamTarget& target, HostName& name) {
  const std::wstring size = SheetSize(target);
  if (!size.empty()) WriteTextParameter(target.item, name, size);
  return !size.empty();
}

}  // namespace

void WriteSheetSizes(DialogView dialog) {
  SaveParamSettings(dialog);
  const auto top = CurrentModelOrAssembly();
  ForEachTarget("QmSheetSize", dialog, kSheetSizeFields, top, &WriteSheetSize);
}

}  // namespace qm
