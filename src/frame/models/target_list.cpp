// Builds target lists from component lists.
#include "frame/models/target_list.h"

#include <algorithm>
#include <functional>

#include "frame/models/component_list.h"

namespace qm {
namespace {

struct TargetClass {
  std::string_view name;
  ComponentKind components;
  bool with_top;
};
constexpr TargetClass kClasses[] = {
    {"AsmAndPart", ComponentKind::kAll, true},
    {"Part", ComponentKind::kParts, false},
    {"Asm", ComponentKind::kAssemblies, true},
    {"Smt", ComponentKind::kSheetMetal, false},
};

void SortAndRemoveDuplicates(std::vector<ProMdl>* models) {
  std::sort(models->begin(), models->end(), std::less<>());
  models->erase(std::unique(models->begin(), models->end()), models->end());
}

}  // namespace

std::optional<TargetList> CollectTargets(const CurrentModel& top, std::string_view class_name) {
  TargetList targets;
  const auto* const target_class =
      std::find_if(std::begin(kClasses), std::end(kClasses),
                   [&](const TargetClass& row) { return row.name == class_name; });
  if (target_class == std::end(kClasses) || top.type != PRO_MDL_ASSEMBLY) return targets;

  ComponentList components;
  if (!Ok(CollectComponents(top.model, target_class->components, &components))) return std::nullopt;
  targets.component_count = components.size();
  targets.left_out = static_cast<long long>(components.left_out().size());
  if (target_class->with_top) targets.models.push_back(top.model);
  for (int i = 0; i < components.size(); ++i) {
    if (components.model(i) != nullptr) targets.models.push_back(components.model(i));
  }
  SortAndRemoveDuplicates(&targets.models);
  return targets;
}

}  // namespace qm
