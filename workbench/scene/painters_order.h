// In which order faces are painted so that what is in front covers what is behind it.
#pragma once

#include <cstddef>
#include <vector>

#include "workbench/scene/seen_face.h"

namespace wb {

struct PaintingBounds {
  // Beyond so many pieces nothing is cut any more.
  std::size_t pieces = 20'000;
  // After so many comparisons of two faces no more are made: of thousands of clear boxes that lie
  // in one place nothing can be told apart anyway.
  std::size_t comparisons = 2'000'000;
};

// What is behind first. Faces that pass through each other, or cover each other in a ring, are cut;
// those that a single opaque one hides are left out. Of faces in one plane the later one is painted
// last. Up to both bounds nothing that is further away covers anything nearer; of what is not cut
// or compared any more, the middles are sorted.
std::vector<SeenFace> PaintersOrder(std::vector<SeenFace> faces, const PaintingBounds& bounds = {});

}  // namespace wb
