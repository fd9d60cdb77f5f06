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
#include "frame/models/preselection.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kNothingSelected[] = L"\t请先选择需要独立显示的模型\t";

// A preselected part or subassembly.
struct SelectedComponent {
  std::vector<ProFeature> levels;  // from the top level down to the component itself
  ProMdl model = nullptr;          // the root itself when there are no levels
  ProMdlType type = PRO_MDL_UNUSED;
};

// The model under the path's first `count` ids; null when there is none.
ProMdl ModelAt(ProMdl root, ProAsmcomppath& whole, int count) {
  ProAsmcomppath path{};
  ProMdl model = nullptr;
  const ProError status = ProAsmcomppathInit(root, whole.comp_id_table, count, &path);
  if (!Ok(status) || path.owner == nullptr) return nullptr;
  return Ok(ProAsmcomppathMdlGet(&path, &model)) ? model : nullptr;
}

// Whether an item can be a component at all. Nothing when the host does not tell.
std::optional<bool> MayBeComponent(ProModelitem& item) {
  if (item.type == PRO_PART || item.type == PRO_ASSEMBLY) return true;
  if (item.type != PRO_FEATURE) return false;
  ProFeattype type = 0;  // none of the host's
  if (!Ok(ProFeatureTypeGet(&item, &type)) || type == 0) return std::nullopt;
  return type == PRO_FEAT_COMPONENT;
}

// The component features along the path and the model at its end; null in `model` when a level is
// not in session.
SelectedComponent FollowPath(ProMdl root, ProAsmcomppath& path) {
  SelectedComponent selected;
  selected.model = root;
  for (int level = 0; level < path.table_num && selected.model != nullptr; ++level) {
    selected.levels.push_back({PRO_FEATURE, path.comp_id_table[level], selected.model});
    selected.model = ModelAt(root, path, level + 1);
  }
  return selected;
}

// The component that was picked as `item`. Nothing when the host does not tell.
std::optional<SelectedComponent> ReadComponent(ProMdl root, ProSelection selection,
                                               ProModelitem& item) {
  ProAsmcomppath path{};
  if (!Ok(ProSelectionAsmcomppathGet(selection, &path))) return std::nullopt;
  if (path.table_num < 0 || path.table_num > PRO_MAX_ASSEM_LEVEL) return std::nullopt;

  SelectedComponent selected = FollowPath(root, path);
  // A component picked as a feature may come with the path of the assembly it lies in.
  if (item.type == PRO_FEATURE && selected.model == item.owner) {
    selected.levels.push_back(item);
    if (!Ok(ProAsmcompMdlGet(&item, &selected.model))) return std::nullopt;
  }
  if (selected.model == nullptr) return std::nullopt;
  if (!Ok(ProMdlTypeGet(selected.model, &selected.type))) return std::nullopt;
  if (selected.type != PRO_MDL_ASSEMBLY && selected.type != PRO_MDL_PART) return std::nullopt;
  return selected;
}

struct Preselection {
  std::vector<SelectedComponent> components;
  long long left_out = 0;  // items that cannot be read
};

// What is no component is passed over: a feature, surface or edge.
void ReadSelection(ProMdl root, ProSelection selection, Preselection* preselection) {
  auto item = ItemOf(selection);
  const auto may_be = item ? MayBeComponent(*item) : std::nullopt;
  if (may_be == false) return;
  auto component = may_be ? ReadComponent(root, selection, *item) : std::nullopt;
  if (component) {
    preselection->components.push_back(std::move(*component));
  } else {
    ++preselection->left_out;
    LogEvent("a preselected item left out: it cannot be read");
  }
}

// Empty when nothing fit is preselected.
Preselection PreselectedComponents(ProMdl root) {
  Preselection preselection;
  const auto selections = ReadPreselection();
  const int count = selections ? selections->size() : 0;
  for (int i = 0; i < count; ++i) ReadSelection(root, (*selections)[i], &preselection);
  return preselection;
}

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
  Preselection selected = PreselectedComponents(*root);
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
