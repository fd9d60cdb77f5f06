// In which order faces are painted so that what is in front covers what is behind it.
#pragma once

#include <cstddef>
#include <vector>

#include "workbench/scene/seen_face.h"

namespace wb {

// Beyond so many pieces nothing is cut any more.
inline constexpr std::size_t kMostFacePieces = 20'000;

// What is behind first. Faces that pass through each other, or cover each other in a ring, are cut;
// those that a single opaque one hides are left out. Of faces in one plane the later one is painted
// last. Up to `most_pieces` nothing that is further away covers anything nearer; of what is not cut
// any more, the middles are sorted.
std::vector<SeenFace> PaintersOrder(std::vector<SeenFace> faces,
                                    std::size_t most_pieces = kMostFacePieces);

}  // namespace wb
