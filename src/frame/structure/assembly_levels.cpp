// Levels by the owners of component features.
#include "frame/structure/assembly_levels.h"

#include "frame/models/handle_index.h"

namespace qm {
namespace {

class LevelNumbers {
 public:
  explicit LevelNumbers(std::vector<std::vector<AssemblyLevels::Component>>* levels)
      : levels_(*levels) {}
  size_t Of(ProMdl assembly) {
    const auto [number, is_new] = numbers_.Insert(assembly);
    if (is_new) levels_.emplace_back();
    return number;
  }

 private:
  HandleIndex numbers_;
  std::vector<std::vector<AssemblyLevels::Component>>& levels_;
};

}  // namespace

AssemblyLevels::AssemblyLevels(ProMdl top, const ComponentList& components) {
  LevelNumbers numbers(&components_);
  numbers.Of(top);
  for (int i = 0; i < components.size(); ++i) {
    if (components.repeated(i)) continue;
    const ProFeature& feature = *components.feature(i);
    const size_t level = numbers.Of(feature.owner);
    if (components.type(i) == PRO_MDL_ASSEMBLY) numbers.Of(components.model(i));
    components_[level].push_back({feature, components.model(i), components.type(i)});
  }
  for (const std::vector<Component>& level : components_) {
    std::vector<LevelComponent>& ids = ids_.emplace_back();
    for (const Component& component : level) {
      const bool is_assembly = component.type == PRO_MDL_ASSEMBLY;
      ids.push_back({component.feature.id,
                     is_assembly ? static_cast<int>(numbers.Of(component.model)) : kNoLevel});
    }
  }
}

}  // namespace qm
