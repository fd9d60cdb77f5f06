// B-spline curves and surfaces of STEP files, evaluated where a box needs them.
#pragma once

#include <optional>
#include <vector>

#include "workbench/step/shape/step_geometry.h"

namespace wb {

// A point times its weight, and the weight.
struct StepPole {
  StepPoint point;
  double weight = 1;
};

// One parameter direction of a spline: degree and knots, each knot as often as it counts.
struct StepKnots {
  std::size_t degree = 0;
  std::vector<double> knots;

  double first() const { return knots[degree]; }
  double last() const { return knots[knots.size() - degree - 1]; }
  // The parameters that cut first()..last() into spans with `steps` steps each, ends included.
  std::vector<double> Steps(std::size_t steps) const;
  // The pole at `parameter`; `poles` has knots.size() - degree - 1 entries.
  StepPole Evaluate(const StepPole* poles, double parameter) const;
};

struct StepSplineCurve {
  StepKnots knots;
  std::vector<StepPole> poles;
  StepPoint At(double parameter) const;
};

struct StepSplineSurface {
  StepKnots u, v;
  std::vector<StepPole> poles;  // row after row: all v of the first u, then of the second
  std::size_t rows = 0, columns = 0;
  // Points for every pair of parameters: all `vs` of the first of `us`, then of the second.
  std::vector<StepPoint> Grid(const std::vector<double>& us, const std::vector<double>& vs) const;
};

// All kinds of B_SPLINE_CURVE and B_SPLINE_SURFACE: with knots, Bezier, uniform, quasi-uniform,
// each with or without weights. None when counts do not fit together or the record is no spline.
std::optional<StepSplineCurve> ReadStepSplineCurve(const StepFile& file, const StepRecord& record,
                                                   double scale);
std::optional<StepSplineSurface> ReadStepSplineSurface(const StepFile& file,
                                                       const StepRecord& record, double scale);

}  // namespace wb
