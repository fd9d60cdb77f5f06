// Points where a curved surface reaches farthest along x, y or z, and a flat map of the surface on
// which a face's boundary can be told from its inside.
#pragma once

#include <functional>
#include <vector>

#include "workbench/step/shape/step_geometry.h"

namespace wb {

struct StepBulges {
  // Candidates on the whole surface; whether a face has them is not known here.
  std::vector<StepPoint> points;
  // Set when the points are only samples: the true outermost place beside one of them along one
  // coordinate (`sign` 1 for its maximum, -1 for its minimum).
  std::function<StepPoint(const StepPoint&, int coordinate, double sign)> sharpen;
  // The map: surface points to points with z = 0, so that the surface's normal looks up. A sphere
  // has no flat map; it maps to itself.
  std::function<StepPoint(const StepPoint&)> flatten;
  std::function<StepPoint(const StepPoint&)> normal_at;  // up, seen from a place on the map
  double period[2] = {0, 0};  // map width where the surface closes in x or y, else 0
};

// Nothing for planes, cylinders, cones and extrusions, which reach farthest on their edges.
StepBulges ReadStepBulges(const StepFile& file, const StepRecord& surface, double scale);

}  // namespace wb
