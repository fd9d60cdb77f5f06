// SurfTransparent: the surfaces that the user picks get their model's colour and become clear, or
// opaque again.
#include "display/surf_transparent.h"

#include "display/appearance.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/preselection.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr int kMostSurfaces = 30;

bool IsSolid(const std::optional<CurrentModel>& model) {
  return model && (model->type == PRO_MDL_PART || model->type == PRO_MDL_ASSEMBLY ||
                   model->type == PRO_MDL_MFG);
}

// What cannot be read is left alone.
void Switch(ProSelection selection) {
  const auto surface = ItemOf(selection);
  const auto owner = surface ? ItemOfModel(surface->owner) : std::nullopt;
  auto appearance = owner ? ReadAppearance(*owner) : std::nullopt;
  const auto own = appearance ? ReadAppearance(*surface) : std::nullopt;
  if (!own) return;
  appearance->transparency = SwitchedSurfaceTransparency(own->transparency);
  WriteAppearance(*surface, *appearance);
}

}  // namespace

ProError SurfTransparent() {
  if (!IsSolid(CurrentModelItself())) {
    ShowShortMessage(L"当前无组件/零件模型！");
    return PRO_TK_NO_ERROR;
  }
  DisplayPrompt("Please select surfaces to be transparent:");
  ProSelection* selections = nullptr;
  int count = 0;
  const ProError status = ProSelect("surface,sldface,qltface", kMostSurfaces, nullptr, nullptr,
                                    nullptr, nullptr, &selections, &count);
  if (!Ok(status) || count < 1 || selections == nullptr) return PRO_TK_USER_ABORT;
  for (int i = 0; i < count; ++i) Switch(selections[i]);
  LogCount("picked", count);
  ProWindowRepaint(kAllWindows);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
