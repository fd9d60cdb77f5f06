// Collection with its two refusals.
#include "frame/models/opening.h"

#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "toolkit/status.h"

namespace qm {

Collect ComponentsOf(ComponentKind kind) {
  return [kind](ProSolid root, ComponentList* components) {
    return CollectComponents(root, kind, components);
  };
}

Opening OpenAssembly(ProMdl root, const Collect& collect, const wchar_t* none) {
  Opening opening{root, {}, PRO_TK_NO_ERROR, 0};
  opening.status = collect(root, &opening.components);
  opening.left_out = static_cast<long long>(opening.components.left_out().size());
  std::optional<int> count;
  if (Ok(opening.status)) count = opening.components.size();
  if (HasComponents(count, none)) {
    LogCount("components", opening.components.size());
  } else {
    NoteLeftOut(opening.left_out);
    opening.components = ComponentList();
  }
  return opening;
}

Opening OpenCurrentAssembly(const Collect& collect, const wchar_t* none) {
  const auto root = CurrentAssembly();
  if (root) return OpenAssembly(*root, collect, none);
  LogOutcome("nothing done, no current assembly");
  return Opening();
}

bool HasComponents(std::optional<int> count, const wchar_t* none) {
  if (!count) {
    ShowNotCollected();
  } else if (*count == 0) {
    ShowShortMessage(none);
  }
  return count.value_or(0) != 0;
}

void ShowNotCollected() {
  ShowShortMessage(L"ProArray Alloc error");
}

}  // namespace qm
