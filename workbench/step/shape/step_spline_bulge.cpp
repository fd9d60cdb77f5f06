// Samples a spline surface; the grid's own numbering serves as the flat map.
#include "workbench/step/shape/step_spline_bulge.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace wb {
namespace {

class Grid {
 public:
  explicit Grid(StepSplineSurface surface)
      : surface_(std::move(surface)),
        us_(Steps(surface_.u)),
        vs_(Steps(surface_.v)),
        points_(surface_.Grid(us_, vs_)) {}

  const std::vector<StepPoint>& points() const { return points_; }
  double rows() const { return static_cast<double>(us_.size() - 1); }
  double columns() const { return static_cast<double>(vs_.size() - 1); }

  // Whether the surface closes: its last row or column lies on its first.
  bool ClosesAlongU() const {
    for (std::size_t j = 0; j < vs_.size(); ++j) {
      if (!Same(At(0, j), At(us_.size() - 1, j))) return false;
    }
    return true;
  }
  bool ClosesAlongV() const {
    for (std::size_t i = 0; i < us_.size(); ++i) {
      if (!Same(At(i, 0), At(i, vs_.size() - 1))) return false;
    }
    return true;
  }

  // From the nearest grid point one step by the slopes there.
  StepPoint Flatten(const StepPoint& point) const {
    std::size_t nearest = 0;
    double best = std::numeric_limits<double>::infinity();
    for (std::size_t n = 0; n < points_.size(); ++n) {
      const StepPoint gap = point - points_[n];
      if (Dot(gap, gap) < best) {
        best = Dot(gap, gap);
        nearest = n;
      }
    }
    const std::size_t i = nearest / vs_.size(), j = nearest % vs_.size();
    const StepPoint gap = point - points_[nearest];
    const StepPoint du = Slope(i, us_.size(), [&](std::size_t n) { return At(n, j); });
    const StepPoint dv = Slope(j, vs_.size(), [&](std::size_t n) { return At(i, n); });
    const double a = Dot(du, du), b = Dot(du, dv), c = Dot(dv, dv);
    const double p = Dot(gap, du), q = Dot(gap, dv), det = a * c - b * b;
    double step_u = 0, step_v = 0;
    if (det > 1e-9 * a * c) {
      step_u = std::clamp((p * c - q * b) / det, -1.0, 1.0);
      step_v = std::clamp((q * a - p * b) / det, -1.0, 1.0);
    }
    return {{std::clamp(static_cast<double>(i) + step_u, 0.0, rows()),
             std::clamp(static_cast<double>(j) + step_v, 0.0, columns()), 0}};
  }

  // Steps aside in u and v as long as that leads farther out, with ever shorter steps.
  StepPoint Climb(const StepPoint& start, int coordinate, double sign) const {
    StepPoint place = Flatten(start);
    StepPoint top = start;
    double step = 0.5;
    for (int tries = 0; step > 1e-7 && tries < 200; ++tries) {
      StepPoint best_place = place;
      for (int way = 0; way < 4; ++way) {
        StepPoint aside = place;
        aside[way / 2] += way % 2 == 0 ? step : -step;
        const StepPoint point = Surface(aside);
        if (sign * point[coordinate] > sign * top[coordinate]) {
          top = point;
          best_place = aside;
        }
      }
      const StepPoint moved = best_place - place;
      if (Dot(moved, moved) == 0) step /= 2;
      place = best_place;
    }
    return top;
  }

 private:
  // Some 16 steps across, more when the surface has more spans.
  static std::vector<double> Steps(const StepKnots& knots) {
    const std::size_t spans = knots.Steps(1).size() - 1;
    return knots.Steps(std::max<std::size_t>(1, 16 / spans));
  }
  static StepPoint Slope(std::size_t n, std::size_t count, const auto& at) {
    const std::size_t low = n == 0 ? 0 : n - 1, high = std::min(n + 1, count - 1);
    return (at(high) - at(low)) * (1 / static_cast<double>(high - low));
  }
  static double Parameter(const std::vector<double>& steps, double place) {
    place = std::clamp(place, 0.0, static_cast<double>(steps.size() - 1));
    const std::size_t low = std::min(static_cast<std::size_t>(place), steps.size() - 2);
    return steps[low] + (steps[low + 1] - steps[low]) * (place - static_cast<double>(low));
  }
  bool Same(const StepPoint& a, const StepPoint& b) const { return Length(a - b) < 1e-6; }
  const StepPoint& At(std::size_t i, std::size_t j) const { return points_[i * vs_.size() + j]; }
  StepPoint Surface(const StepPoint& place) const {
    return surface_.Grid({Parameter(us_, place[0])}, {Parameter(vs_, place[1])})[0];
  }

  StepSplineSurface surface_;
  std::vector<double> us_, vs_;
  std::vector<StepPoint> points_;  // all columns of the first row, then of the second
};

}  // namespace

bool IsStepSplineSurface(const StepType& type) {
  return std::any_of(type.names.begin(), type.names.end(), [](const std::string& name) {
    return name.starts_with("B_SPLINE_SURFACE") || name == "BEZIER_SURFACE" ||
           name == "UNIFORM_SURFACE" || name == "QUASI_UNIFORM_SURFACE";
  });
}

StepBulges SplineBulges(StepSplineSurface surface) {
  const auto grid = std::make_shared<const Grid>(std::move(surface));
  StepBulges bulges;
  bulges.points = grid->points();
  bulges.sharpen = [grid](const StepPoint& point, int coordinate, double sign) {
    return grid->Climb(point, coordinate, sign);
  };
  bulges.flatten = [grid](const StepPoint& point) { return grid->Flatten(point); };
  bulges.normal_at = [](const StepPoint&) { return StepPoint{{0, 0, 1}}; };
  bulges.period[0] = grid->ClosesAlongU() ? grid->rows() : 0;
  bulges.period[1] = grid->ClosesAlongV() ? grid->columns() : 0;
  return bulges;
}

}  // namespace wb
