// Hide state of components.
#include "display/hide_state.h"

#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "toolkit/window.h"

namespace qm {
namespace {

void LogUnlessDone(const ProFeature& component, const char* function, ProError status) {
  if (!Ok(status) && status != PRO_TK_NO_CHANGE) LogFailure(component.owner, function, status);
}

}  // namespace

void HideComponent(ProFeature* component) {
  LogUnlessDone(*component, "ProModelitemHide", ProModelitemHide(component));
}

void ShowComponent(ProFeature* component) {
  LogUnlessDone(*component, "ProModelitemUnhide", ProModelitemUnhide(component));
}

void ShowComponents(const ComponentList& components) {
  for (int i = 0; i < components.size(); ++i) ShowComponent(components.feature(i));
}

void RefreshDisplay(Opening* opening) {
  opening->components = ComponentList();
  ProWindowRepaint(kAllWindows);
  ProTreetoolRefresh(opening->root);
  NoteLeftOut(opening->left_out);
}

}  // namespace qm
