// Where the components of an assembly stand, and whether they are shown.
#pragma once

#include <optional>
#include <vector>

#include "frame/geometry/matrix_rules.h"
#include "frame/structure/assembly_levels.h"

namespace qm {

// Asks the host once for each component of a level, however often its assembly is placed.
class PlacedComponents {
 public:
  explicit PlacedComponents(const AssemblyLevels& levels) : levels_(levels) {}

  struct Place {
    bool is_shown;
    Matrix matrix;  // in the assembly that has the component
  };
  // Null, after a line in the run log, when the host does not tell.
  const Place* At(int level, size_t component);

 private:
  struct Answer {
    bool is_asked = false;
    std::optional<Place> place;
  };
  const AssemblyLevels& levels_;
  std::vector<std::vector<Answer>> answers_;
};

}  // namespace qm
