// Measures the target models for their outline parameter.
#include "params/outline_tool.h"

#include "frame/guard/visit.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/text/outline_rules.h"
#include "params/param_batch.h"
#include "params/param_settings.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

constexpr wchar_t kNoAssembly[] = L"当前环境不是组件/制造，无法执行此操作";

struct OutlineFormat {
  int decimals;
  bool descending;
};

// A surface faces out of the model, into it, or is said to do neither.
bool IsOrientation(ProSurfaceOrient orientation) {
  return orientation == PRO_SURF_ORIENT_OUT || orientation == PRO_SURF_ORIENT_IN ||
         orientation == PRO_SURF_ORIENT_NONE;
}

// Fails also for a success without usable data: where the corners span no box or the orientation is
// none, the host's record is in another order than ours, and its numbers mean something else.
ProError IncludeSurface(ProSurface surface, OutlineBox* box) {
  GeometryData data;
  const ProError status = ProSurfaceDataGet(surface, data.put());
  if (!Ok(status)) return status;
  if (!data || data.get()->data.p_surface_data == nullptr) return PRO_TK_INVALID_ITEM;
  const ProSurfacedata& shape = *data.get()->data.p_surface_data;
  if (!IsOrientation(shape.orient)) return PRO_TK_INVALID_ITEM;
  return box->Include(shape.xyz_min, shape.xyz_max) ? PRO_TK_NO_ERROR : PRO_TK_INVALID_ITEM;
}

// Empty when the model has no surfaces; nothing when one cannot be read, since a wrong size in a
// parts list is worse than none.
std::optional<OutlineBox> Measure(ProMdl model) {
  OutlineBox box;
  ProError unread = PRO_TK_NO_ERROR;
  const ProError visited = VisitSurfaces(
      model, [&](ProSurface surface) { return unread = IncludeSurface(surface, &box); });
  if (!Ok(unread)) {
    LogFailure(model, "ProSurfaceDataGet", unread);
    return std::nullopt;
  }
  if (!Ok(visited) && visited != PRO_TK_E_NOT_FOUND) {
    LogFailure(model, "ProSolidSurfaceVisit", visited);
    return std::nullopt;
  }
  return box;
}

ValueForModel Outline(const ModelTarget& target, const OutlineFormat& format) {
  const auto box = Measure(target.model);
  if (!box) return UnreadModel();
  if (box->empty()) return {};
  auto text = OutlineText(box->Sizes(), format.decimals, format.descending);
  if (!text) {
    LogFailure(target.name, "outline text", PRO_TK_LINE_TOO_LONG);
    return UnreadModel();
  }
  return {std::move(text)};
}

// Nothing when one of the options cannot be read.
std::optional<OutlineFormat> AskFormat(const DialogView& dialog, const StoredFields& fields) {
  const auto decimals = fields.Value(dialog, kDecimals);
  const auto order = fields.Value(dialog, kOrder);
  if (!decimals || !order) return std::nullopt;
  return OutlineFormat{OutlineDecimals(*decimals), *order == kChecked};
}

}  // namespace

void WriteOutlines(const DialogView& dialog, StoredFields& fields) {
  CommandLog log("QmOutline");
  SaveParamSettings(dialog, fields);
  const auto top = CurrentModelOrAssembly();
  if (!top || top->type != PRO_MDL_ASSEMBLY) {
    ShowMessage(kNoAssembly);
    return;
  }
  const auto format = AskFormat(dialog, fields);
  if (!format) {
    ShowShortMessage(kUnreadableField);
    return;
  }
  const auto outline_for = [&](const ModelTarget& target) { return Outline(target, *format); };
  RunBatch(dialog, fields, top, {kOutlineFields, outline_for, &WriteText});
}

}  // namespace qm
