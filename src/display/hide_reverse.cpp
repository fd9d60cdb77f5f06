// QmHideReverse: swaps shown and hidden parts of the current assembly. Subassemblies end up shown
// in any case, since a hidden one would hide the parts below it as well.
#include "display/hide_reverse.h"

#include "display/hide_state.h"
#include "frame/messages/run_log.h"
#include "frame/models/opening.h"

namespace qm {
namespace {

// The blank behind the slash is deliberate: this command's text has it, the other two commands'
// text has not. Kept as it stands.
constexpr wchar_t kNoComponentsHere[] = L"当前模型中没有合适的子零/ 组件";

// False when the host does not tell, and the part stays as it is.
bool ReversePart(ProFeature* part) {
  // Neither, should the host answer success without a state.
  auto hidden = static_cast<ProBoolean>(-1);
  const ProError status = ProModelitemIsHidden(part, &hidden);
  if (Ok(status) && hidden == PRO_B_TRUE) {
    ShowComponent(part);
  } else if (Ok(status) && hidden == PRO_B_FALSE) {
    HideComponent(part);
  } else {
    LogLeftOut(*part, "ProModelitemIsHidden", status);
    return false;
  }
  return true;
}

// Gives how many were left as they are.
long long Reverse(const ComponentList& components) {
  long long left_out = 0;
  for (int i = 0; i < components.size(); ++i) {
    // Reversed twice, a part would stay as it is.
    if (components.repeated(i)) continue;
    if (components.type(i) == PRO_MDL_ASSEMBLY) ShowComponent(components.feature(i));
    if (components.type(i) == PRO_MDL_PART && !ReversePart(components.feature(i))) ++left_out;
  }
  return left_out;
}

}  // namespace

ProError QmHideReverse() {
  Opening opening = OpenCurrentAssembly(ComponentsOf(ComponentKind::kAll), kNoComponentsHere);
  if (opening.components.empty()) return opening.status;
  opening.left_out += Reverse(opening.components);
  RefreshDisplay(&opening);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
