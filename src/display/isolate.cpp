// QmIsolate: shows only the components that the user has preselected, with the assemblies above
// them and, for a preselected subassembly, everything inside it. All is read before anything is
// hidden, so a refusal leaves the display as it was.
#include "display/isolate.h"

#include <optional>
#include <set>
#include <unordered_set>
#include <utility>
#include <vector>

#include "display/hide_state.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/opening.h"
#include "frame/structure/preselected_components.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kNothingSelected[] = L"\t请先选择需要独立显示的模型\t";

void HideParts(const ComponentList& components) {
  for (int i = 0; i < components.size(); ++i) {
    if (components.type(i) == PRO_MDL_ASSEMBLY) ShowComponent(components.feature(i));
    if (components.type(i) == PRO_MDL_PART) HideComponent(components.feature(i));
  }
}

// The components under each preselected assembly, which is entered once however often it is
// preselected: the hide state belongs to the features inside it, not to its placements.
ProError CollectInside(const std::vector<SelectedComponent>& selected,
                       std::vector<ComponentList>* inside) {
  std::unordered_set<ProMdl> entered;
  for (const SelectedComponent& component : selected) {
    if (component.type != PRO_MDL_ASSEMBLY || !entered.insert(component.model).second) continue;
    const ProError status =
        CollectComponents(component.model, ComponentKind::kAll, &inside->emplace_back());
    if (!Ok(status)) return status;
  }
  return PRO_TK_NO_ERROR;
}

// How many components are left out by any of the lists. Those inside the selected assemblies are
// among all of the root's, so that most stand in two lists.
long long CountLeftOut(const ComponentList& all, const std::vector<ComponentList>& inside) {
  std::set<std::pair<ProMdl, int>> left_out;
  const auto add = [&](const ComponentList& list) {
    for (const ProFeature& component : list.left_out()) {
      left_out.emplace(component.owner, component.id);
    }
  };
  add(all);
  for (const ComponentList& list : inside) add(list);
  return static_cast<long long>(left_out.size());
}

void Show(std::vector<SelectedComponent>& selected, const std::vector<ComponentList>& inside) {
  for (SelectedComponent& component : selected) {
    for (ProFeature& level : component.levels) ShowComponent(&level);
  }
  for (const ComponentList& components : inside) ShowComponents(components);
}

}  // namespace

ProError QmIsolate() {
  // The window is asked for but only the root decides: the repaint at the end takes all windows.
  int window = 0;
  ProWindowCurrentGet(&window);
  const auto root = CurrentAssembly();
  if (!root) {
    LogOutcome("nothing done, no current assembly");
    return PRO_TK_NO_ERROR;
  }
  ComponentSelection selected = PreselectedComponents(*root);
  if (selected.components.empty()) {
    ShowMessage(kNothingSelected);
    NoteLeftOut(selected.left_out);
    return PRO_TK_NO_ERROR;
  }
  std::vector<ComponentList> inside;
  const auto collect = [&](ProSolid assembly, ComponentList* all) {
    const ProError status = CollectComponents(assembly, ComponentKind::kAll, all);
    return Ok(status) ? CollectInside(selected.components, &inside) : status;
  };
  Opening opening = OpenAssembly(*root, collect, kNoComponents);
  if (opening.components.empty()) {
    NoteLeftOut(selected.left_out);
    return opening.status;
  }
  opening.left_out = selected.left_out + CountLeftOut(opening.components, inside);
  LogCount("selected", static_cast<long long>(selected.components.size()));
  HideParts(opening.components);
  opening.components = ComponentList();
  Show(selected.components, inside);
  RefreshDisplay(&opening);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
