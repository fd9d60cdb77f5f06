// What stands for the shape of a model in an exported file: blocks around its surfaces.
#pragma once

#include <vector>

#include "workbench/session/model.h"
#include "workbench/step/write/step_records.h"

namespace wb {

// A block for each group of surfaces: those that touch each other are one, and so are groups whose
// blocks touch, so that a model made of blocks gives the same blocks again. Sorted by place.
std::vector<Box> BlocksAround(const ItemList<Surface>& surfaces);

// Writes a block as a body, or, when it is flat, as one face; what has no area gives nothing.
struct StepBodies {
  std::vector<int> solids;
  std::vector<int> faces;  // surface models
};
StepBodies WriteStepBodies(const std::vector<Box>& blocks, StepRecords& records);

}  // namespace wb
