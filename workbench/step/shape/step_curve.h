// Curves of STEP files as chains of points, dense enough for boxes and for telling sides.
#pragma once

#include <numbers>
#include <vector>

#include "workbench/step/shape/step_geometry.h"

namespace wb {

constexpr double kTurn = 2 * std::numbers::pi;  // once around

// The stretch of a curve that an edge uses.
struct StepStretch {
  StepPoint start, end;
  bool closed = false;  // once around, back to the start
  bool forward = true;  // from start to end along the curve's own sense
};

// Points along `curve` from start to end. The box over them is that of lines and of arcs of
// circles and ellipses exactly, of splines up to rounding where one bend per step is seen, and of
// parabolas, hyperbolas and trimmed polylines nearly. Curves of other kinds give both ends only.
std::vector<StepPoint> ReadStepStretch(const StepFile& file, const StepRecord& curve, double scale,
                                       const StepStretch& stretch);

// Points along the whole of a curve that has ends of its own or is closed; nothing for a line.
std::vector<StepPoint> ReadStepCurve(const StepFile& file, const StepRecord& curve, double scale);

}  // namespace wb
