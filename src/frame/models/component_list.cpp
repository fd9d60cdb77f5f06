// Collection of components. The host visits one level at a time and the levels are walked here, so
// that the depth of an assembly does not depend on the stack; each model is read once, however
// often it is placed.
#include "frame/models/component_list.h"

#include <algorithm>
#include <limits>

#include "frame/guard/visit.h"
#include "frame/messages/run_log.h"
#include "frame/models/handle_index.h"

namespace qm {
namespace {

// Status flags of a feature that is no component to work on, although its type says so.
constexpr int kSkippedStatusFlags = 130;

// No feature is of this type.
constexpr ProFeattype kNoFeattype = 0;

enum class LevelFilter { kComponents, kShowAll };

bool AcceptsType(LevelFilter filter, ProFeattype type) {
  if (type == PRO_FEAT_COMPONENT) return true;
  return filter == LevelFilter::kShowAll &&
         (type == PRO_FEAT_TOP_LEVEL_1104 || type == PRO_FEAT_TOP_LEVEL_1232);
}

// How a question to the host ended that decides whether a component belongs to a list. A success
// that fills nothing in is a failure.
struct Answer {
  const char* function = nullptr;
  ProError status = PRO_TK_NO_ERROR;
  bool is_known = true;
};

// What an answer is before the host fills it in; none of its own, of which -1 is one.
constexpr int kNoAnswer = std::numeric_limits<int>::min();

Answer AskFlags(ProFeature& feature, int* flags) {
  const ProError status = ProFeatureStatusflagsGet(&feature, flags);
  return {"ProFeatureStatusflagsGet", status, Ok(status)};
}

Answer AskType(ProFeature& feature, ProFeattype* type) {
  *type = kNoFeattype;
  const ProError status = ProFeatureTypeGet(&feature, type);
  return {"ProFeatureTypeGet", status, Ok(status) && *type != kNoFeattype};
}

Answer AskStatus(ProFeature& feature, ProFeatStatus* feature_status) {
  const ProError status = ProFeatureStatusGet(&feature, feature_status);
  return {"ProFeatureStatusGet", status,
          Ok(status) && *feature_status != static_cast<ProFeatStatus>(kNoAnswer)};
}

Answer AskVisibility(ProFeature& feature, ProBoolean* visible) {
  const ProError status = ProFeatureVisibilityGet(&feature, visible);
  return {"ProFeatureVisibilityGet", status,
          Ok(status) && (*visible == PRO_B_TRUE || *visible == PRO_B_FALSE)};
}

// Nothing but a part or an assembly can be placed.
Answer AskModelType(ProMdl model, ProMdlType* type) {
  const ProError status = ProMdlTypeGet(model, type);
  return {"ProMdlTypeGet", status,
          Ok(status) && (*type == PRO_MDL_PART || *type == PRO_MDL_ASSEMBLY)};
}

Answer AskSubtype(ProMdl model, ProMdlsubtype* subtype) {
  const ProError status = ProMdlSubtypeGet(model, subtype);
  return {"ProMdlSubtypeGet", status,
          Ok(status) && *subtype != static_cast<ProMdlsubtype>(kNoAnswer)};
}

// A model as met during one collection. Models are known by number, so that all of them, and the
// components of all levels, stand in one array each.
struct Node {
  ProMdl model = nullptr;
  ProMdlType type = PRO_MDL_UNUSED;
  bool sheet_metal = false;
  Answer answer = {};  // the first one that told nothing, if any
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
    if (static_cast<size_t>(list_.size_) < list_.models_.size()) {
      LeaveOut(LevelOf(root), "ProArraySizeGet", PRO_TK_GENERAL_ERROR);
    }
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
        model, [&](ProFeature& feature) { return IsAccepted(filter, feature, &type); },
        [&](ProFeature& feature) { return ReadPlacement(feature, type); });
    if (!Ok(status) && status != PRO_TK_CONTINUE && status != PRO_TK_E_NOT_FOUND) {
      LeaveOut(LevelOf(model), "ProSolidFeatVisit", status);
    }
    Node& node = nodes_[assembly];
    node.level_read = true;
    node.level_begin = begin;
    node.level_end = static_cast<uint32_t>(placements_.size());
  }

  // Stands for the components of an assembly that cannot be told one by one.
  static ProFeature LevelOf(ProMdl assembly) { return {PRO_FEATURE, -1, assembly}; }

  void LeaveOut(const ProFeature& component, const char* function, ProError status) {
    LogLeftOut(component, function, status);
    list_.left_out_.push_back(component);
  }
  void LeaveOut(const ProFeature& component, const Answer& answer) {
    LeaveOut(component, answer.function, answer.status);
  }

  // `type` receives the type of an accepted feature.
  bool IsAccepted(LevelFilter filter, ProFeature& feature, ProFeattype* type) {
    int flags = 0;
    const Answer flags_answer = AskFlags(feature, &flags);
    if (flags_answer.is_known && flags == kSkippedStatusFlags) return false;
    // Asked even when the flags are not known: a feature of another type is not missed.
    const Answer type_answer = AskType(feature, type);
    if (type_answer.is_known && !AcceptsType(filter, *type)) return false;
    if (flags_answer.is_known && type_answer.is_known) return true;
    LeaveOut(feature, flags_answer.is_known ? type_answer : flags_answer);
    return false;
  }

  // One that is known to be inactive or invisible is not missed, whatever else is not known.
  bool IsActiveAndVisible(ProFeature& feature) {
    auto status = static_cast<ProFeatStatus>(kNoAnswer);
    auto visible = static_cast<ProBoolean>(kNoAnswer);
    const Answer status_answer = AskStatus(feature, &status);
    const Answer visible_answer = AskVisibility(feature, &visible);
    if (status_answer.is_known && status != PRO_FEAT_ACTIVE) return false;
    if (visible_answer.is_known && visible != PRO_B_TRUE) return false;
    if (status_answer.is_known && visible_answer.is_known) return true;
    LeaveOut(feature, status_answer.is_known ? visible_answer : status_answer);
    return false;
  }

  ProError ReadPlacement(ProFeature& feature, ProFeattype type) {
    if (!IsActiveAndVisible(feature)) return PRO_TK_NO_ERROR;
    placements_.push_back({feature, kNoNode});
    ProMdl model = nullptr;
    const ProError status = ProAsmcompMdlGet(&feature, &model);
    if (!Ok(status) || model == nullptr) {
      // The further types of the show-all command need not place a model: nothing is missing then.
      if (type != PRO_FEAT_COMPONENT) return PRO_TK_NO_ERROR;
      LeaveOut(feature, "ProAsmcompMdlGet", status);
      // As an action's answer this ends the level: what follows the missing model is not listed,
      // and how much that is nobody counts.
      LogEvent("what stands behind it in the same assembly is left out, too");
      return PRO_TK_CONTINUE;
    }
    const NodeNumber node = NodeOf(model);
    placements_.back().node = node;
    if (!nodes_[node].answer.is_known) LeaveOut(feature, nodes_[node].answer);
    return PRO_TK_NO_ERROR;
  }

  NodeNumber NodeOf(ProMdl model) {
    const auto [number, is_new] = index_.Insert(model);
    if (is_new) nodes_.push_back(ReadNode(model));
    return number;
  }

  Node ReadNode(ProMdl model) const {
    Node node{model};
    node.answer = AskModelType(model, &node.type);
    if (!node.answer.is_known) node.type = PRO_MDL_UNUSED;
    if (kind_ == ComponentKind::kSheetMetal && node.type != PRO_MDL_ASSEMBLY) {
      auto subtype = static_cast<ProMdlsubtype>(kNoAnswer);
      const Answer answer = AskSubtype(model, &subtype);
      node.sheet_metal = answer.is_known && subtype == PROMDLSTYPE_PART_SHEETMETAL;
      // A sheet-metal part is a part, whatever else is not known.
      if (node.answer.is_known || node.sheet_metal) node.answer = answer;
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
      LeaveOut(placement.feature, "ProArrayObjectAdd", status);
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
