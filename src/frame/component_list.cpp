// Collection of components. The host visits one level at a time and the levels are walked here, so
// that the depth of an assembly does not depend on the stack; each model is read once, however
// often it is placed.
#include "frame/component_list.h"

#include <algorithm>
#include <unordered_map>

#include "frame/run_log.h"
#include "frame/visit.h"

namespace qm {
namespace {

// Status flags of a feature that is no component to work on, although its type says so.
constexpr int kSkippedStatusFlags = 130;

enum class LevelFilter { kComponents, kShowAll };

bool AcceptsType(LevelFilter filter, ProFeattype type) {
  if (type == PRO_FEAT_COMPONENT) return true;
  return filter == LevelFilter::kShowAll &&
         (type == PRO_FEAT_TOP_LEVEL_1104 || type == PRO_FEAT_TOP_LEVEL_1232);
}

bool Accepts(LevelFilter filter, ProFeature& feature) {
  int flags = 0;
  if (!Ok(ProFeatureStatusflagsGet(&feature, &flags)) || flags == kSkippedStatusFlags) return false;
  ProFeattype type = 0;
  return Ok(ProFeatureTypeGet(&feature, &type)) && AcceptsType(filter, type);
}

bool IsActiveAndVisible(ProFeature& feature) {
  ProFeatStatus status = PRO_FEAT_INVALID;
  ProBoolean visible = PRO_B_FALSE;
  return Ok(ProFeatureStatusGet(&feature, &status)) &&
         Ok(ProFeatureVisibilityGet(&feature, &visible)) && visible == PRO_B_TRUE &&
         status == PRO_FEAT_ACTIVE;
}

// A model as met during one collection.
struct Node;
struct Placement {
  ProFeature feature;
  Node* node;  // null: the model is not in session
};
struct Node {
  ProMdl model = nullptr;
  ProMdlType type = PRO_MDL_UNUSED;
  bool sheet_metal = false;
  bool level_read = false;
  bool entered = false;  // on the way from the root to where the walk is
  std::vector<Placement> level;
};

}  // namespace

class ComponentCollector {
 public:
  ComponentCollector(ComponentKind kind, ComponentList* list) : kind_(kind), list_(*list) {}

  ProError Collect(ProSolid root, LevelFilter top_filter) {
    list_ = ComponentList();
    const ProError status = list_.features_.Allocate();
    if (!Ok(status)) return status;
    Node& top = nodes_[root];
    top.model = root;
    top.type = PRO_MDL_ASSEMBLY;
    ReadLevel(top, top_filter);
    Walk(top);
    list_.size_ = std::min(list_.features_.size(), static_cast<int>(list_.models_.size()));
    return PRO_TK_NO_ERROR;
  }

 private:
  struct Position {
    Node* assembly;
    size_t next;
  };

  // Subassemblies come after the placement that leads to them and before its successors.
  void Walk(Node& top) {
    std::vector<Position> path;
    Enter(top, path);
    while (!path.empty()) {
      Position& position = path.back();
      if (position.next == position.assembly->level.size()) {
        position.assembly->entered = false;
        path.pop_back();
        continue;
      }
      const Placement& placement = position.assembly->level[position.next++];
      if (IsListed(placement.node)) List(placement);
      // An assembly inside itself would never end.
      if (placement.node != nullptr && placement.node->type == PRO_MDL_ASSEMBLY &&
          !placement.node->entered) {
        Enter(*placement.node, path);
      }
    }
  }

  void Enter(Node& assembly, std::vector<Position>& path) {
    if (!assembly.level_read) ReadLevel(assembly, LevelFilter::kComponents);
    assembly.entered = true;
    path.push_back({&assembly, 0});
  }

  void ReadLevel(Node& assembly, LevelFilter filter) {
    assembly.level_read = true;
    const ProError status = VisitFeatures(
        assembly.model, [&](ProFeature& feature) { return Accepts(filter, feature); },
        [&](ProFeature& feature) { return ReadPlacement(assembly, feature); });
    if (!Ok(status) && status != PRO_TK_CONTINUE && status != PRO_TK_E_NOT_FOUND) {
      LogFailure(assembly.model, "ProSolidFeatVisit", status);
    }
  }

  ProError ReadPlacement(Node& assembly, ProFeature& feature) {
    if (!IsActiveAndVisible(feature)) return PRO_TK_NO_ERROR;
    Placement& placement = assembly.level.emplace_back(Placement{feature, nullptr});
    ProMdl model = nullptr;
    const ProError status = ProAsmcompMdlGet(&feature, &model);
    if (!Ok(status) || model == nullptr) {
      LogFailure(assembly.model, "ProAsmcompMdlGet", status);
      // As an action's answer this ends the level: what follows the missing model is not listed.
      return PRO_TK_CONTINUE;
    }
    placement.node = &NodeOf(model);
    return PRO_TK_NO_ERROR;
  }

  Node& NodeOf(ProMdl model) {
    const auto [found, is_new] = nodes_.try_emplace(model);
    Node& node = found->second;
    if (!is_new) return node;
    node.model = model;
    const ProError status = ProMdlTypeGet(model, &node.type);
    if (!Ok(status)) {
      node.type = PRO_MDL_UNUSED;
      LogFailure(model, "ProMdlTypeGet", status);
    }
    if (kind_ == ComponentKind::kSheetMetal && node.type != PRO_MDL_ASSEMBLY) {
      ProMdlsubtype subtype = PROMDLSTYPE_NONE;
      node.sheet_metal =
          Ok(ProMdlSubtypeGet(model, &subtype)) && subtype == PROMDLSTYPE_PART_SHEETMETAL;
    }
    return node;
  }

  bool IsListed(const Node* node) const {
    if (kind_ == ComponentKind::kAll) return true;
    if (node == nullptr) return false;
    if (kind_ == ComponentKind::kSheetMetal) return node->sheet_metal;
    return node->type == (kind_ == ComponentKind::kParts ? PRO_MDL_PART : PRO_MDL_ASSEMBLY);
  }

  void List(const Placement& placement) {
    const ProError status = list_.features_.Append(placement.feature);
    if (!Ok(status)) {
      LogFailure(placement.feature.owner, "ProArrayObjectAdd", status);
      return;
    }
    const Node* const node = placement.node;
    list_.models_.push_back(node != nullptr ? ComponentList::Model{node->model, node->type}
                                            : ComponentList::Model{nullptr, PRO_MDL_UNUSED});
  }

  ComponentKind kind_;
  ComponentList& list_;
  std::unordered_map<ProMdl, Node> nodes_;  // its elements never move
};

ProError CollectComponents(ProSolid root, ComponentKind kind, ComponentList* list) {
  return ComponentCollector(kind, list).Collect(root, LevelFilter::kComponents);
}

ProError CollectComponentsForShowAll(ProSolid root, ComponentList* list) {
  return ComponentCollector(ComponentKind::kAll, list).Collect(root, LevelFilter::kShowAll);
}

}  // namespace qm
