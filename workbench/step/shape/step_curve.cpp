// Points on lines, conics, polylines and splines.
#include "workbench/step/shape/step_curve.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "workbench/step/shape/step_spline.h"

namespace wb {
namespace {

constexpr double kStepsPerTurn = 32;
constexpr double kSamePoint = 1e-7;  // millimetres

// A circle or ellipse: center + u cos t + v sin t.
struct Conic {
  StepPoint center, u, v;
  StepPoint At(double t) const { return center + u * std::cos(t) + v * std::sin(t); }
  double ParameterOf(const StepPoint& point) const {
    const StepPoint arm = point - center;
    return std::atan2(Dot(arm, v) / Dot(v, v), Dot(arm, u) / Dot(u, u));
  }
};

StepPoint Row(const StepPlacement& placement, int row) {
  return {{placement.m[row][0], placement.m[row][1], placement.m[row][2]}};
}

std::optional<Conic> ReadConic(const StepFile& file, const StepRecord& curve, double scale) {
  const bool circle = file.TypeOf(curve).Has("CIRCLE");
  if (!circle && !file.TypeOf(curve).Has("ELLIPSE")) return std::nullopt;
  const StepArguments values = file.Arguments(curve);
  const StepPlacement place = ReadStepPlacement(file, values.Reference(1), scale);
  const double along = values.Number(2) * scale;
  const double across = circle ? along : values.Number(3) * scale;
  if (!(along > 0) || !(across > 0)) return std::nullopt;
  return Conic{Row(place, 3), Row(place, 0) * along, Row(place, 1) * across};
}

// Even steps, and between them the places where the arc turns back along x, y or z.
std::vector<StepPoint> ConicPoints(const Conic& conic, double from, double to) {
  std::vector<double> parameters;
  const double low = std::min(from, to), high = std::max(from, to);
  const double steps = std::max(2.0, std::ceil((high - low) / kTurn * kStepsPerTurn));
  for (double i = 0; i <= steps; ++i) parameters.push_back(low + (high - low) * i / steps);
  for (int k = 0; k < 3; ++k) {
    const double turn = std::atan2(conic.v[k], conic.u[k]);
    const double first = turn + std::ceil((low - turn) / (kTurn / 2)) * (kTurn / 2);
    for (double t = first; t < high; t += kTurn / 2) parameters.push_back(t);
  }
  std::sort(parameters.begin(), parameters.end());
  std::vector<StepPoint> points;
  for (const double t : parameters) points.push_back(conic.At(t));
  if (from > to) std::reverse(points.begin(), points.end());
  return points;
}

std::vector<StepPoint> ConicStretch(const Conic& conic, const StepStretch& stretch) {
  if (!stretch.closed && Length(stretch.end - stretch.start) < kSamePoint) {
    return {stretch.start, stretch.end};
  }
  const double from = conic.ParameterOf(stretch.start);
  double to = stretch.closed ? from : conic.ParameterOf(stretch.end);
  if (stretch.forward && to <= from) to += kTurn;
  if (!stretch.forward && to >= from) to -= kTurn;
  std::vector<StepPoint> points = ConicPoints(conic, from, to);
  points.front() = stretch.start;  // so that neighbouring edges meet exactly
  points.back() = stretch.end;
  return points;
}

// The turning point of coordinate `k` between two parameters that enclose one.
StepPoint Extreme(const StepSplineCurve& curve, int k, double sign, double low, double high) {
  for (int i = 0; i < 40; ++i) {
    const double third = (high - low) / 3;
    const bool left = sign * curve.At(low + third)[k] > sign * curve.At(high - third)[k];
    (left ? high : low) += left ? -third : third;
  }
  return curve.At((low + high) / 2);
}

std::size_t Nearest(const std::vector<StepPoint>& points, const StepPoint& to) {
  const auto distance = [&](const StepPoint& p) { return Dot(p - to, p - to); };
  const auto nearest = std::min_element(
      points.begin(), points.end(),
      [&](const StepPoint& a, const StepPoint& b) { return distance(a) < distance(b); });
  return static_cast<std::size_t>(nearest - points.begin());
}

// Samples with their parameters; Sharpen moves the outermost ones to the true turning points.
struct SplineSamples {
  std::vector<double> parameters;
  std::vector<StepPoint> points;

  void Sharpen(const StepSplineCurve& curve) {
    for (int k = 0; k < 3; ++k) {
      for (const double sign : {1.0, -1.0}) {
        const auto outermost = std::max_element(
            points.begin(), points.end(),
            [&](const auto& a, const auto& b) { return sign * a[k] < sign * b[k]; });
        const auto i = static_cast<std::size_t>(outermost - points.begin());
        if (i == 0 || i + 1 >= points.size()) continue;
        const double low = parameters[i - 1], high = parameters[i + 1];
        if (low < high) points[i] = Extreme(curve, k, sign, low, high);
      }
    }
  }
};

SplineSamples SampleSpline(const StepSplineCurve& curve) {
  const std::size_t spans = curve.knots.Steps(1).size() - 1;
  SplineSamples samples;
  samples.parameters = curve.knots.Steps(std::clamp<std::size_t>(48 / spans, 4, 24));
  for (const double t : samples.parameters) samples.points.push_back(curve.At(t));
  return samples;
}

std::vector<StepPoint> SplineStretch(const StepSplineCurve& curve, const StepStretch& stretch) {
  const SplineSamples all = SampleSpline(curve);
  const StepPoint& low = stretch.forward ? stretch.start : stretch.end;
  const StepPoint& high = stretch.forward ? stretch.end : stretch.start;
  SplineSamples used;
  const auto take = [&](std::size_t from, std::size_t to) {
    for (std::size_t i = from; i < to; ++i) {
      used.parameters.push_back(all.parameters[i]);
      used.points.push_back(all.points[i]);
    }
  };
  std::size_t first = Nearest(all.points, low), last = Nearest(all.points, high);
  const bool ring = Length(all.points.front() - all.points.back()) < kSamePoint;
  if (!ring && last < first) std::swap(first, last);  // an edge whose sense is written wrongly
  if (stretch.closed || last < first) {               // over the place where a closed spline begins
    take(first, all.points.size());
    take(0, last + 1);
  } else {
    take(first, last + 1);
  }
  used.Sharpen(curve);
  // The samples at the ends may lie a little outside the stretch.
  used.points.front() = low;
  used.points.back() = high;
  if (used.points.size() == 1) used.points = {low, high};
  if (!stretch.forward) std::reverse(used.points.begin(), used.points.end());
  return used.points;
}

std::vector<StepPoint> ReadPolyline(const StepFile& file, const StepRecord& curve, double scale) {
  std::vector<StepPoint> points;
  for (const StepRecord* point : file.Arguments(curve).References(1)) {
    points.push_back(ReadStepPoint(file, *point, scale));
  }
  return points;
}

// Parabola and hyperbola: center + x f(t) + y g(t).
std::optional<std::vector<StepPoint>> OpenConicStretch(const StepFile& file,
                                                       const StepRecord& curve, double scale,
                                                       const StepStretch& stretch) {
  const bool parabola = file.TypeOf(curve).Has("PARABOLA");
  if (!parabola && !file.TypeOf(curve).Has("HYPERBOLA")) return std::nullopt;
  const StepArguments values = file.Arguments(curve);
  const StepPlacement place = ReadStepPlacement(file, values.Reference(1), scale);
  const double a = values.Number(2) * scale;
  const double b = parabola ? 2 * a : values.Number(3) * scale;
  if (!(a > 0) || !(b > 0)) return std::vector{stretch.start, stretch.end};
  const auto parameter = [&](const StepPoint& p) {
    const double y = Dot(p - Row(place, 3), Row(place, 1)) / b;
    return parabola ? y : std::asinh(y);
  };
  const double from = parameter(stretch.start), to = parameter(stretch.end);
  std::vector<StepPoint> points{stretch.start};
  for (int i = 1; i < 32; ++i) {
    const double t = from + (to - from) * i / 32;
    points.push_back(Row(place, 3) + Row(place, 0) * (a * (parabola ? t * t : std::cosh(t))) +
                     Row(place, 1) * (b * (parabola ? t : std::sinh(t))));
  }
  points.push_back(stretch.end);
  return points;
}

// The curve inside: that of a surface curve, the basis of a trimmed one. Flips `forward` when the
// trimmed curve runs against its basis.
const StepRecord* Unwrap(const StepFile& file, const StepRecord* curve, bool& forward) {
  for (int depth = 0; depth < 16; ++depth) {
    const StepType& type = file.TypeOf(*curve);
    const bool trimmed = type.Has("TRIMMED_CURVE");
    if (!trimmed && !type.Has("SURFACE_CURVE") && !type.Has("SEAM_CURVE") &&
        !type.Has("INTERSECTION_CURVE")) {
      return curve;
    }
    if (type.names.size() > 1) return curve;
    const StepArguments values = file.Arguments(*curve);
    if (trimmed && !values.Boolean(4)) forward = !forward;
    curve = &values.Reference(1);
  }
  return curve;
}

bool IsSpline(const StepType& type) {
  return type.Has("B_SPLINE_CURVE") || type.Has("B_SPLINE_CURVE_WITH_KNOTS") ||
         type.Has("BEZIER_CURVE") || type.Has("UNIFORM_CURVE") || type.Has("QUASI_UNIFORM_CURVE");
}

// A trim is a point, a parameter or both; only points are of use without the basis' own scale.
std::optional<StepPoint> TrimPoint(const StepFile& file, const StepArguments& values,
                                   std::size_t index, double scale) {
  for (const StepRecord* record : values.References(index)) {
    if (file.TypeOf(*record).Has("CARTESIAN_POINT")) return ReadStepPoint(file, *record, scale);
  }
  return std::nullopt;
}

}  // namespace

std::vector<StepPoint> ReadStepStretch(const StepFile& file, const StepRecord& edge_curve,
                                       double scale, const StepStretch& edge_stretch) {
  StepStretch stretch = edge_stretch;
  const StepRecord& curve = *Unwrap(file, &edge_curve, stretch.forward);
  const StepType& type = file.TypeOf(curve);
  if (const auto conic = ReadConic(file, curve, scale)) return ConicStretch(*conic, stretch);
  if (IsSpline(type)) {
    if (const auto spline = ReadStepSplineCurve(file, curve, scale)) {
      return SplineStretch(*spline, stretch);
    }
  }
  if (auto points = OpenConicStretch(file, curve, scale, stretch)) return *points;
  std::vector<StepPoint> points{stretch.start};
  if (type.Has("POLYLINE")) {
    points = ReadPolyline(file, curve, scale);
    if (!stretch.forward) std::reverse(points.begin(), points.end());
    points.insert(points.begin(), stretch.start);
  }
  points.push_back(stretch.end);
  return points;
}

std::vector<StepPoint> ReadStepCurve(const StepFile& file, const StepRecord& any_curve,
                                     double scale) {
  bool forward = true;
  const StepType& outer = file.TypeOf(any_curve);
  if (outer.Has("TRIMMED_CURVE") && outer.names.size() == 1) {
    const StepArguments values = file.Arguments(any_curve);
    const auto start = TrimPoint(file, values, 2, scale), end = TrimPoint(file, values, 3, scale);
    if (start && end) {
      const bool closed = Length(*end - *start) < kSamePoint;
      return ReadStepStretch(file, any_curve, scale, {*start, *end, closed, true});
    }
  }
  const StepRecord& curve = *Unwrap(file, &any_curve, forward);
  if (const auto conic = ReadConic(file, curve, scale)) return ConicPoints(*conic, 0, kTurn);
  if (file.TypeOf(curve).Has("POLYLINE")) return ReadPolyline(file, curve, scale);
  if (!IsSpline(file.TypeOf(curve))) return {};
  const auto spline = ReadStepSplineCurve(file, curve, scale);
  if (!spline) return {};
  SplineSamples samples = SampleSpline(*spline);
  samples.Sharpen(*spline);
  return samples.points;
}

}  // namespace wb
