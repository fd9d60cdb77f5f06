// Looks up the drawings of the target models for their sheet size parameter.
#include "params/sheet_size_tool.h"

#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "params/param_batch.h"
#include "params/param_settings.h"
#include "toolkit/drawing.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr int kFirstSheet = 1;

// Nothing when there is no such drawing or its sheet cannot be read.
std::optional<ParamValue> SheetSize(const ParamTarget& target) {
  auto name = HostName::From(target.name);
  ProMdl drawing = nullptr;
  ProError status =
      name ? ProMdlRetrieve(name->name, PRO_MDL_DRAWING, &drawing) : PRO_TK_LINE_TOO_LONG;
  if (!Ok(status) || drawing == nullptr) {
    // Most models have no drawing; anything else is a failure.
    if (status != PRO_TK_E_NOT_FOUND) LogFailure(target.model, "ProMdlRetrieve", status);
    return std::nullopt;
  }
  ProName buffer{};
  ProMatrix transform{};
  status = ProDrawingSheetTrfGet(drawing, kFirstSheet, buffer, transform);
  if (!Ok(status)) LogFailure(target.model, "ProDrawingSheetTrfGet", status);
  const std::wstring_view size = FixedText(buffer);
  if (!Ok(status) || size.empty()) return std::nullopt;
  return std::wstring(size);
}

}  // namespace

void WriteSheetSizes(const DialogView& dialog) {
  SaveParamSettings(dialog);
  const auto top = CurrentModelOrAssembly();
  RunBatch(dialog, top, {"QmSheetSize", kSheetSizeFields, &SheetSize, &WriteText});
}

}  // namespace qm
