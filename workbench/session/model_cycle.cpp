// The search for cycles, with a stack of its own: assemblies may be thousands of levels deep.
#include "workbench/session/model_cycle.h"

#include <algorithm>
#include <unordered_set>

#include "workbench/base/text.h"

namespace wb {
namespace {

// A model on the way down, and which of those under it comes next.
struct Step {
  const Model* model;
  std::vector<const Model*> under;
  size_t next = 0;
};

// The models that `model` refers to and that are in session.
std::vector<const Model*> ModelsUnder(const Model& model) {
  std::vector<const Model*> under;
  ForEachLink(const_cast<Model&>(model), [&](const ModelLink& link) {
    if (link.model != nullptr) under.push_back(link.model);
  });
  return under;
}

class CycleSearch {
 public:
  // The cycle, once one has been met below `top`.
  std::vector<const Model*> Below(const Model* top) {
    Enter(top);
    while (!way_.empty()) {
      Step& step = way_.back();
      if (step.next == step.under.size()) {
        on_way_.erase(step.model);
        way_.pop_back();
        continue;
      }
      const Model* const under = step.under[step.next++];
      if (on_way_.contains(under)) return CycleOf(under);
      Enter(under);
    }
    return {};
  }

 private:
  // Each model is walked once, however often it is placed.
  void Enter(const Model* model) {
    if (!walked_.insert(model).second) return;
    way_.push_back({model, ModelsUnder(*model)});
    on_way_.insert(model);
  }

  std::vector<const Model*> CycleOf(const Model* repeated) const {
    std::vector<const Model*> cycle;
    const auto first = std::find_if(way_.begin(), way_.end(),
                                    [&](const Step& step) { return step.model == repeated; });
    for (auto step = first; step != way_.end(); ++step) cycle.push_back(step->model);
    cycle.push_back(repeated);
    return cycle;
  }

  std::vector<Step> way_;
  std::unordered_set<const Model*> on_way_;
  std::unordered_set<const Model*> walked_;
};

}  // namespace

std::vector<const Model*> FindCycle(const std::vector<const Model*>& tops) {
  CycleSearch search;
  for (const Model* const top : tops) {
    std::vector<const Model*> cycle = search.Below(top);
    if (!cycle.empty()) return cycle;
  }
  return {};
}

std::string CycleText(const std::vector<const Model*>& cycle) {
  std::vector<std::string> names;
  for (const Model* const model : cycle) names.push_back(model->id.Text());
  return Join(" > ", names);
}

}  // namespace wb
