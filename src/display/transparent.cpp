// QmTransparent: the current part, or those that the user picks, see-through or opaque again. Their
// surfaces lose colours of their own, so that they follow the part.
#include "display/transparent.h"

#include <vector>

#include "display/appearance.h"
#include "frame/guard/visit.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/preselection.h"
#include "toolkit/geometry.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// Gathered first: what is visited may not change meanwhile.
std::vector<ProSurface> SurfacesOf(ProMdl model) {
  std::vector<ProSurface> surfaces;
  const ProError status = VisitSurfaces(model, [&](ProSurface surface) {
    surfaces.push_back(surface);
    return PRO_TK_NO_ERROR;
  });
  if (!Ok(status) && status != PRO_TK_E_NOT_FOUND) {
    LogFailure(model, "ProSolidSurfaceVisit", status);
  }
  return surfaces;
}

void ClearSurfaces(ProMdl model) {
  for (const ProSurface surface : SurfacesOf(model)) {
    ProGeomitem item = {PRO_TYPE_INVALID, -1, nullptr};
    const ProError status = ProSurfaceToGeomitem(model, surface, &item);
    if (Ok(status) && item.owner != nullptr) {
      ClearAppearance(item);
    } else {
      LogFailure(model, "ProSurfaceToGeomitem", status);
    }
  }
}

// A model whose appearance cannot be read is left alone: it would get another colour.
void Switch(ProMdl model) {
  const auto item = ItemOfModel(model);
  auto appearance = item ? ReadAppearance(*item) : std::nullopt;
  if (!appearance) return;
  appearance->transparency = SwitchedModelTransparency(appearance->transparency);
  ClearSurfaces(model);
  WriteAppearance(*item, *appearance);
}

// False when the user picks nothing. Deliberately each pick counts: a part that is picked twice is
// switched there and back.
bool SwitchPicked() {
  DisplayPrompt("Please select parts to be transparent:");
  ProSelection* selections = nullptr;
  int count = 0;
  const ProError status =
      ProSelect("prt_or_asm", -1, nullptr, nullptr, nullptr, nullptr, &selections, &count);
  if (!Ok(status) || count < 1 || selections == nullptr) return false;
  for (int i = 0; i < count; ++i) {
    const ProMdl model = ComponentModelOf(selections[i]);
    if (model != nullptr) {
      Switch(model);
    } else {
      LogFailure("a pick is left out: it has no component path");
    }
  }
  LogCount("picked", count);
  return true;
}

}  // namespace

ProError QmTransparent() {
  const auto current = CurrentModelItself();
  const ProMdlType type = current ? current->type : PRO_MDL_UNUSED;
  if (type == PRO_MDL_PART) {
    Switch(current->model);
  } else if (type != PRO_MDL_ASSEMBLY && type != PRO_MDL_MFG) {
    ShowShortMessage(L"当前无组件/零件模型！");
    return PRO_TK_NO_ERROR;
  } else if (!SwitchPicked()) {
    return PRO_TK_USER_ABORT;
  }
  ProWindowRepaint(kAllWindows);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
