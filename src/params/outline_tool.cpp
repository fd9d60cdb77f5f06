// Measures the target models for their outline parameter.
#include "params/outline_tool.h"

#include "frame/guard/visit.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "params/outline_rules.h"
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

// Fails also for a success without usable data.
ProError IncludeSurface(ProSurface surface, OutlineBox* box) {
  GeometryData data;
  const ProError status = ProSurfaceDataGet(surface, data.put());
  if (!Ok(status)) return status;
  if (!data || data.get()->data.p_surface_data == nullptr) return PRO_TK_INVALID_ITEM;
  const ProSurfacedata& shape = *data.get()->data.p_surface_data;
  return box->Include(shape.xyz_min, shape.xyz_max) ? PRO_TK_NO_ERROR : PRO_TK_INVALID_ITEM;
}

// Empty when the model has no surfaces, or when one cannot be read: a wrong size in a parts list is
// worse than none.
OutlineBox Measure(ProMdl model) {
  OutlineBox box;
  ProError unread = PRO_TK_NO_ERROR;
  const ProError visited = VisitSurfaces(
      model, [&](ProSurface surface) { return unread = IncludeSurface(surface, &box); });
  if (!Ok(unread)) {
    LogFailure(model, "ProSurfaceDataGet", unread);
    return {};
  }
  if (!Ok(visited) && visited != PRO_TK_E_NOT_FOUND) {
    LogFailure(model, "ProSolidSurfaceVisit", visited);
    return {};
  }
  return box;
}

// Nothing when the model is left alone.
std::optional<ParamValue> Outline(const ParamTarget& target, const OutlineFormat& format) {
  const OutlineBox box = Measure(target.model);
  if (box.empty()) return std::nullopt;
  auto text = OutlineText(box.Sizes(), format.decimals, format.descending);
  if (!text) LogFailure(target.model, "outline text", PRO_TK_LINE_TOO_LONG);
  return text;
}

}  // namespace

void WriteOutlines(const DialogView& dialog) {
  SaveParamSettings(dialog);
  const auto top = CurrentModelOrAssembly();
  if (!top || top->type != PRO_MDL_ASSEMBLY) {
    ShowMessage(kNoAssembly);
    return;
  }
  const OutlineFormat format{OutlineDecimals(dialog.OptionValue("QmOutlineNum")),
                             dialog.CheckState("QmOutlineOrder").value_or(false)};
  const auto outline_for = [&](const ParamTarget& target) { return Outline(target, format); };
  RunBatch(dialog, top, {"QmOutline", kOutlineFields, outline_for, &WriteText});
}

}  // namespace qm
