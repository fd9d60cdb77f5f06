// How far parts reach in the directions of an assembly, from the extremes of their surfaces.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <utility>

#include "assembly/components/box_rules.h"
#include "toolkit/model.h"

namespace qm {

struct PartReach {
  Reach reach;
  bool is_whole = true;  // false: a surface of it reaches nowhere, and is not in it
};

// Measures each part once for each way in which it is turned, however often it is placed.
class PartReaches {
 public:
  // Null, after a line in the run log, when a surface cannot be read, or none of them reaches
  // anywhere; a part without surfaces reaches nowhere.
  const PartReach* Of(ProMdl part, const Matrix& placement);

 private:
  using Turn = std::array<double, kAxisCount * kAxisCount>;
  std::map<std::pair<ProMdl, Turn>, std::optional<PartReach>> reaches_;
};

}  // namespace qm
