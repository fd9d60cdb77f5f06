// Points where a curved surface reaches farthest along x, y or z.
#pragma once

#include <functional>
#include <vector>

#include "workbench/step_geometry.h"

namespace wb {

struct StepBulge {
  StepPoint point;
  StepPoint normal;  // of the surface at the point
};

struct StepBulges {
  std::vector<StepBulge> points;
  // The surface's normal at a point near it; none when only the bulges' own normals are known.
  std::function<StepPoint(const StepPoint&)> normal_at;
};

// Candidates on the whole surface; whether a face has them is not known here. Nothing for planes,
// cylinders, cones and extrusions, which reach farthest on their edges.
StepBulges ReadStepBulges(const StepFile& file, const StepRecord& surface, double scale);

}  // namespace wb
