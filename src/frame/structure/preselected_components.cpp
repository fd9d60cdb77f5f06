// Components of the selection buffer, level by level.
#include "frame/structure/preselected_components.h"

#include <optional>
#include <utility>

#include "frame/messages/run_log.h"
#include "frame/models/preselection.h"

namespace qm {
namespace {

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

// What is no component is passed over: a feature, surface or edge.
void ReadSelection(ProMdl root, ProSelection selection, ComponentSelection* preselection) {
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

}  // namespace

ComponentSelection PreselectedComponents(ProMdl root) {
  ComponentSelection preselection;
  const PreselectionAnswer answer = AskPreselection();
  preselection.is_read = !answer.is_unreadable && !answer.has_failed;
  const int count = answer.items ? answer.items->size() : 0;
  for (int i = 0; i < count; ++i) ReadSelection(root, (*answer.items)[i], &preselection);
  return preselection;
}

ComponentTree TreeOf(const std::vector<SelectedComponent>& selected) {
  ComponentTree tree;
  for (const SelectedComponent& component : selected) {
    std::vector<int> path;
    for (const ProFeature& level : component.levels) path.push_back(level.id);
    tree.Add(path);
  }
  return tree;
}

}  // namespace qm
