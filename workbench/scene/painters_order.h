// In which order boxes are painted so that what is in front covers what is behind it.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "workbench/session/model_link.h"

namespace wb {

// A box as the viewer sees it: x to the right, y up, z towards him.
struct SeenBox {
  std::array<Point, 8> corners{};
  std::array<Point, 3> normals{};  // of the faces at the upper ends of its edges, length 1
};
SeenBox SeenFrom(const Box& box, const Placement& placement);

// Places in the list, what is behind first. Boxes that lie in each other go as if they were parted
// where they do so least, unless that puts others wrong.
std::vector<std::size_t> PaintersOrder(const std::vector<SeenBox>& boxes);

}  // namespace wb
