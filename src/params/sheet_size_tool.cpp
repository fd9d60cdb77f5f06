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

ValueForModel SheetSize(const ModelTarget& target) {
  auto name = HostName::From(target.name);
  ProMdl drawing = nullptr;
  ProError status =
      name ? ProMdlRetrieve(name->name, PRO_MDL_DRAWING, &drawing) : PRO_TK_LINE_TOO_LONG;
  // Most models have no drawing; anything else is a failure.
  if (status == PRO_TK_E_NOT_FOUND) return {};
  if (!Ok(status) || drawing == nullptr) {
    LogFailure(target.name, "ProMdlRetrieve", status);
    return UnreadModel();
  }
  ProName buffer{};
  ProMatrix transform{};
  status = ProDrawingSheetTrfGet(drawing, kFirstSheet, buffer, transform);
  const std::wstring_view size = FixedText(buffer);
  if (!Ok(status) || size.empty()) {
    LogFailure(target.name, "ProDrawingSheetTrfGet", status);
    return UnreadModel();
  }
  return {std::wstring(size)};
}

}  // namespace

void WriteSheetSizes(const DialogView& dialog, StoredFields& fields) {
  CommandLog log("QmSheetSize");
  SaveParamSettings(dialog, fields);
  const auto top = CurrentModelOrAssembly();
  RunBatch(dialog, fields, top, {kSheetSizeFields, &SheetSize, &WriteText});
}

}  // namespace qm
