// Where the components of STEP assemblies stand, by either of the two ways that files say it.
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "workbench/step/shape/step_shape.h"
#include "workbench/step/step_definitions.h"

namespace wb {

class StepPlacements {
 public:
  StepPlacements(const StepFile& file, const StepCatalog& catalog,
                 const StepDefinitions& definitions, StepUnits& units, StepShapes& shapes);

  // Where the occurrence `usage` of `child` stands in `parent`, from the transformation between
  // their representations; none when the file gives none.
  std::optional<StepPlacement> OfUsage(const StepRecord& usage, int parent, int child);
  // The components that the representations of `parent` show as mapped items, in order.
  struct Shown {
    int child;
    const StepRecord* item;
    StepPlacement placement;
  };
  std::vector<Shown> ShownBy(int parent);

 private:
  std::optional<StepPlacement> FromRelation(const StepRecord& relation, int parent, int child);
  bool Lists(const StepRecord& representation, const StepRecord& item);

  const StepFile& file_;
  const StepDefinitions& definitions_;
  StepUnits& units_;
  StepShapes& shapes_;
  std::unordered_map<const StepRecord*, std::vector<const StepRecord*>> relations_;  // by usage
  std::unordered_map<const StepRecord*, std::vector<const StepRecord*>> items_;      // sorted
};

}  // namespace wb
