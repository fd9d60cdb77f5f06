// Outermost points of spheres, tori, surfaces of revolution and spline surfaces.
#include "workbench/step_bulge.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "workbench/step_curve.h"
#include "workbench/step_spline.h"

namespace wb {
namespace {

constexpr StepPoint kAxes[] = {{{1, 0, 0}}, {{0, 1, 0}}, {{0, 0, 1}}};
constexpr int kRingSteps = 24;

// A circle's plane: center, axis, and two directions across.
struct Frame {
  StepPoint origin, x, y, axis;

  explicit Frame(const StepPlacement& placement) {
    for (int k = 0; k < 3; ++k) {
      x[k] = placement.m[0][k];
      y[k] = placement.m[1][k];
      axis[k] = placement.m[2][k];
      origin[k] = placement.m[3][k];
    }
  }
  StepPoint Across(const StepPoint& v) const { return v - axis * Dot(v, axis); }
  // Directions from the axis in which a ring can reach farthest along `k`: two opposite ones, or
  // all round when the ring lies level.
  std::vector<StepPoint> Outward(int k) const {
    const StepPoint across = Across(kAxes[k]);
    if (Length(across) > 1e-6) {
      const StepPoint unit = Unit(across, x);
      return {unit, unit * -1};
    }
    std::vector<StepPoint> ring;
    for (int i = 0; i < kRingSteps; ++i) {
      const double angle = 2 * std::numbers::pi * i / kRingSteps;
      ring.push_back(x * std::cos(angle) + y * std::sin(angle));
    }
    return ring;
  }
};

StepBulges SphereBulges(const StepPoint& center, double radius) {
  StepBulges bulges;
  for (const StepPoint& axis : kAxes) {
    bulges.points.push_back({center + axis * radius, axis});
    bulges.points.push_back({center - axis * radius, axis * -1});
  }
  bulges.normal_at = [center](const StepPoint& p) { return Unit(p - center, kAxes[2]); };
  return bulges;
}

StepBulges TorusBulges(const Frame& frame, double major, double minor) {
  StepBulges bulges;
  for (int k = 0; k < 3; ++k) {
    for (const StepPoint& outward : frame.Outward(k)) {
      const StepPoint ring = frame.origin + outward * major;
      for (const double sign : {1.0, -1.0}) {
        bulges.points.push_back({ring + kAxes[k] * (sign * minor), kAxes[k] * sign});
      }
    }
  }
  bulges.normal_at = [frame, major](const StepPoint& p) {
    const StepPoint arm = p - frame.origin;
    return Unit(arm - Unit(frame.Across(arm), frame.x) * major, frame.axis);
  };
  return bulges;
}

// Turns every point of the profile to where its circle reaches farthest.
StepBulges RevolutionBulges(const Frame& frame, const std::vector<StepPoint>& profile) {
  StepBulges bulges;
  for (std::size_t i = 0; i < profile.size(); ++i) {
    const StepPoint arm = profile[i] - frame.origin;
    const StepPoint spoke = frame.Across(arm);
    const StepPoint out = Unit(spoke, frame.x);
    const StepPoint along =
        profile[std::min(i + 1, profile.size() - 1)] - profile[i == 0 ? 0 : i - 1];
    for (int k = 0; k < 3; ++k) {
      for (const StepPoint& outward : frame.Outward(k)) {
        const StepPoint tangent = outward * Dot(along, out) + frame.axis * Dot(along, frame.axis);
        const StepPoint point =
            frame.origin + frame.axis * Dot(arm, frame.axis) + outward * Length(spoke);
        bulges.points.push_back({point, Unit(Cross(Cross(frame.axis, outward), tangent), outward)});
      }
    }
  }
  return bulges;
}

StepBulges SplineBulges(const StepSplineSurface& surface) {
  const auto steps = [](const StepKnots& knots) {
    const std::size_t spans = knots.Steps(1).size() - 1;
    return knots.Steps(std::max<std::size_t>(1, 16 / spans));
  };
  const std::vector<double> us = steps(surface.u), vs = steps(surface.v);
  const std::vector<StepPoint> grid = surface.Grid(us, vs);
  const auto at = [&](std::size_t i, std::size_t j) { return grid[i * vs.size() + j]; };
  StepBulges bulges;
  for (std::size_t i = 0; i < us.size(); ++i) {
    for (std::size_t j = 0; j < vs.size(); ++j) {
      const StepPoint du = at(std::min(i + 1, us.size() - 1), j) - at(i == 0 ? 0 : i - 1, j);
      const StepPoint dv = at(i, std::min(j + 1, vs.size() - 1)) - at(i, j == 0 ? 0 : j - 1);
      bulges.points.push_back({at(i, j), Unit(Cross(du, dv), kAxes[2])});
    }
  }
  return bulges;
}

bool IsSplineSurface(const StepType& type) {
  return std::any_of(type.names.begin(), type.names.end(), [](const std::string& name) {
    return name.starts_with("B_SPLINE_SURFACE") || name == "BEZIER_SURFACE" ||
           name == "UNIFORM_SURFACE" || name == "QUASI_UNIFORM_SURFACE";
  });
}

}  // namespace

StepBulges ReadStepBulges(const StepFile& file, const StepRecord& any_surface, double scale) {
  const StepRecord* surface = &any_surface;
  for (int i = 0; i < 16 && file.TypeOf(*surface).Has("RECTANGULAR_TRIMMED_SURFACE"); ++i) {
    surface = &file.Arguments(*surface).Reference(1);
  }
  const StepType& type = file.TypeOf(*surface);
  if (IsSplineSurface(type)) {
    const auto spline = ReadStepSplineSurface(file, *surface, scale);
    return spline ? SplineBulges(*spline) : StepBulges();
  }
  const bool sphere = type.Has("SPHERICAL_SURFACE");
  const bool torus = type.Has("TOROIDAL_SURFACE") || type.Has("DEGENERATE_TOROIDAL_SURFACE");
  if (type.names.size() > 1 || !(sphere || torus || type.Has("SURFACE_OF_REVOLUTION"))) return {};
  const StepArguments values = file.Arguments(*surface);
  if (sphere || torus) {
    const Frame frame(ReadStepPlacement(file, values.Reference(1), scale));
    const double radius = values.Number(2) * scale;
    return sphere ? SphereBulges(frame.origin, radius)
                  : TorusBulges(frame, radius, values.Number(3) * scale);
  }
  return RevolutionBulges(Frame(ReadStepPlacement(file, values.Reference(2), scale)),
                          ReadStepCurve(file, values.Reference(1), scale));
}

}  // namespace wb
