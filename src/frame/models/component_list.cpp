// Collection of components. The host visits one level at a time and the levels are walked here, so
// that the depth of an assembly does not depend on the stack; each model is read once, however
// often it is placed.
#include "frame/models/component_list.h"

#include <algorithm>

#include "frame/guard/visit.h"
#include "frame/messages/run_log.h"
#include "frame/models/handle_index.h"

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

// `type` receives the type of an accepted feature.
bool Accepts(LevelFilter filter, ProFeature& feature, ProFeattype* type) {
  int flags = 0;
  if (!Ok(ProFeatureStatusflagsGet(&feature, &flags)) || flags == kSkippedStatusFlags) return false;
  return Ok(ProFeatureTypeGet(&feature, type)) && AcceptsType(filter, *type);
}

bool IsActiveAndVisible(ProFeature& feature) {
  ProFeatStatus status = PRO_FEAT_INVALID;
  ProBoolean visible = PRO_B_FALSE;
  return Ok(ProFeatureStatusGet(&feature, &status)) &&
         Ok(ProFeatureVisibilityGet(&feature, &visible)) && visible == PRO_B_TRUE &&
         status == PRO_FEAT_ACTIVE;
}

// A model as met during one collection. Models are known by number, so that all of them, and the
// components of all levels, stand in one array each.
struct Node {
  ProMdl model = nullptr;
  ProMdlType type = PRO_MDL_UNUSED;
  bool sheet_metal = false;
  bool level_read = false;
  bool entered = false;  // on the way from the root to where the walk is
  bool walked = false;   // its components stand in the list already
  uint32_t level_begin = 0;
  uint32_t level_end = 0;
};
using NodeNumber = uint32_t;
constexpr NodeNumber kNoNode = UINT32_MAX;  // the model is not in session
struct Placement {
  ProFeature feature;
  NodeNumber node;
};

}  // namespace

class ComponentCollector {
 public:
  ComponentCollector(ComponentKind kind, ComponentList* list) : kind_(kind), list_(*list) {}

  ProError Collect(ProSolid root, LevelFilter top_filter) {
    list_ = ComponentList();
    const ProError status = list_.features_.Allocate();
    if (!Ok(status)) return status;
    const NodeNumber top = index_.Insert(root).first;
    nodes_.push_back({root, PRO_MDL_ASSEMBLY});
    ReadLevel(top, top_filter);
    Walk(top);
    list_.size_ = std::min(list_.features_.size(), static_cast<int>(list_.models_.size()));
    return PRO_TK_NO_ERROR;
  }

 private:
  struct Position {
    NodeNumber assembly;
    uint32_t next;
    bool repeated;
  };

  // Subassemblies come after the placement that leads to them and before its successors.
  void Walk(NodeNumber top) {
    std::vector<Position> path;
    Enter(top, path);
    while (!path.empty()) {
      Position& position = path.back();
      if (position.next == nodes_[position.assembly].level_end) {
        nodes_[position.assembly].entered = false;
        path.pop_back();
        continue;
      }
      const Placement& placement = placements_[position.next++];
      if (IsListed(placement.node)) List(placement, position.repeated);
      if (CanEnter(placement.node)) Enter(placement.node, path);
    }
  }

  // An assembly inside itself would never end.
  bool CanEnter(NodeNumber node) const {
    return node != kNoNode && nodes_[node].type == PRO_MDL_ASSEMBLY && !nodes_[node].entered;
  }

  void Enter(NodeNumber assembly, std::vector<Position>& path) {
    if (!nodes_[assembly].level_read) ReadLevel(assembly, LevelFilter::kComponents);
    Node& node = nodes_[assembly];
    path.push_back({assembly, node.level_begin, node.walked});
    node.entered = true;
    node.walked = true;
  }

  void ReadLevel(NodeNumber assembly, LevelFilter filter) {
    const ProMdl model = nodes_[assembly].model;
    const auto begin = static_cast<uint32_t>(placements_.size());
    ProFeattype type = 0;
    const ProError status = VisitFeatures(
        model, [&](ProFeature& feature) { return Accepts(filter, feature, &type); },
        [&](ProFeature& feature) { return ReadPlacement(model, feature, type); });
    if (!Ok(status) && status != PRO_TK_CONTINUE && status != PRO_TK_E_NOT_FOUND) {
      LogFailure(model, "ProSolidFeatVisit", status);
    }
    Node& node = nodes_[assembly];
    node.level_read = true;
    node.level_begin = begin;
    node.level_end = static_cast<uint32_t>(placements_.size());
  }

  ProError ReadPlacement(ProMdl assembly, ProFeature& feature, ProFeattype type) {
    if (!IsActiveAndVisible(feature)) return PRO_TK_NO_ERROR;
    placements_.push_back({feature, kNoNode});
    ProMdl model = nullptr;
    const ProError status = ProAsmcompMdlGet(&feature, &model);
    if (!Ok(status) || model == nullptr) {
      // The further types of the show-all command need not place a model: nothing is missing then.
      if (type != PRO_FEAT_COMPONENT) return PRO_TK_NO_ERROR;
      LogFailure(assembly, "ProAsmcompMdlGet", status);
      // As an action's answer this ends the level: what follows the missing model is not listed.
      return PRO_TK_CONTINUE;
    }
    placements_.back().node = NodeOf(model);
    return PRO_TK_NO_ERROR;
  }

  NodeNumber NodeOf(ProMdl model) {
    const auto [number, is_new] = index_.Insert(model);
    if (is_new) nodes_.push_back(ReadNode(model));
    return number;
  }

  Node ReadNode(ProMdl model) const {
    Node node{model};
    const ProError status = ProMdlTypeGet(model, &node.type);
    if (!Ok(status)) {
      node.type = PRO_MDL_UNUSED;
      LogFailure(model, "ProMdlTypeGet", status);
    }
    if (kind_ == ComponentKind::kSheetMetal && node.type != PRO_MDL_ASSEMBLY) {
      ProMdlsubtype subtype = PROMDLSTYPE_UNUSED;
      node.sheet_metal =
          Ok(ProMdlSubtypeGet(model, &subtype)) && subtype == PROMDLSTYPE_PART_SHEETMETAL;
    }
    return node;
  }

  bool IsListed(NodeNumber number) const {
    if (kind_ == ComponentKind::kAll) return true;
    if (number == kNoNode) return false;
    const Node& node = nodes_[number];
    if (kind_ == ComponentKind::kSheetMetal) return node.sheet_metal;
    return node.type == (kind_ == ComponentKind::kParts ? PRO_MDL_PART : PRO_MDL_ASSEMBLY);
  }

  void List(const Placement& placement, bool repeated) {
    const ProError status = list_.features_.Append(placement.feature);
    if (!Ok(status)) {
      LogFailure(placement.feature.owner, "ProArrayObjectAdd", status);
      return;
    }
    ComponentList::Model model{nullptr, PRO_MDL_UNUSED, repeated};
    if (placement.node != kNoNode) {
      model.handle = nodes_[placement.node].model;
      model.type = nodes_[placement.node].type;
    }
    list_.models_.push_back(model);
  }

  ComponentKind kind_;
  ComponentList& list_;
  HandleIndex index_;  // numbers of the nodes
  std::vector<Node> nodes_;
  std::vector<Placement> placements_;  // one level after another
};

ProError CollectComponents(ProSolid root, ComponentKind kind, ComponentList* list) {
  return ComponentCollector(kind, list).Collect(root, LevelFilter::kComponents);
}

ProError CollectComponentsForShowAll(ProSolid root, ComponentList* list) {
  return ComponentCollector(ComponentKind::kAll, list).Collect(root, LevelFilter::kShowAll);
}

}  // namespace qm
