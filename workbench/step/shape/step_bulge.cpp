// Outermost points of spheres, tori and surfaces of revolution.
#include "workbench/step/shape/step_bulge.h"

#include <algorithm>
#include <cmath>

#include "workbench/step/shape/step_curve.h"
#include "workbench/step/shape/step_spline_bulge.h"

namespace wb {
namespace {

constexpr StepPoint kAxes[] = {{{1, 0, 0}}, {{0, 1, 0}}, {{0, 0, 1}}};
constexpr int kRingSteps = 24;

// A surface that turns about an axis.
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
  double Angle(const StepPoint& arm) const { return std::atan2(Dot(arm, y), Dot(arm, x)); }
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
      const double angle = kTurn * i / kRingSteps;
      ring.push_back(x * std::cos(angle) + y * std::sin(angle));
    }
    return ring;
  }
};

StepBulges SphereBulges(const StepPoint& center, double radius) {
  StepBulges bulges;
  for (const StepPoint& axis : kAxes) {
    bulges.points.push_back(center + axis * radius);
    bulges.points.push_back(center - axis * radius);
  }
  bulges.flatten = [](const StepPoint& p) { return p; };
  bulges.normal_at = [center](const StepPoint& p) { return Unit(p - center, kAxes[2]); };
  return bulges;
}

StepPoint Up(const StepPoint&) {
  return kAxes[2];
}

// The map is the angle about the axis by the angle about the tube.
StepBulges TorusBulges(const Frame& frame, double major, double minor) {
  StepBulges bulges;
  for (int k = 0; k < 3; ++k) {
    for (const StepPoint& outward : frame.Outward(k)) {
      const StepPoint ring = frame.origin + outward * major;
      bulges.points.push_back(ring + kAxes[k] * minor);
      bulges.points.push_back(ring - kAxes[k] * minor);
    }
  }
  bulges.flatten = [frame, major, minor](const StepPoint& p) {
    const StepPoint arm = p - frame.origin;
    StepPoint out = Unit(frame.Across(arm), frame.x);
    // A tube thicker than its ring crosses the axis; there a point belongs to the far ring side.
    const double gap = std::abs(Length(arm - out * major) - minor);
    if (std::abs(Length(arm + out * major) - minor) < gap - 1e-6 * minor) out = out * -1;
    const StepPoint tube = arm - out * major;
    const double around = std::atan2(Dot(tube, frame.axis), Dot(tube, out));
    return StepPoint{{frame.Angle(out) * (major + minor), around * minor, 0}};
  };
  bulges.normal_at = Up;
  bulges.period[0] = kTurn * (major + minor);
  bulges.period[1] = kTurn * minor;
  return bulges;
}

// A profile curve as seen in the half plane that it turns through: distance from the axis, place
// along the axis, and the way to each point along the curve.
struct Profile {
  std::vector<double> radius, height, way;

  Profile(const Frame& frame, const std::vector<StepPoint>& points) {
    for (const StepPoint& point : points) {
      const StepPoint arm = point - frame.origin;
      radius.push_back(Length(frame.Across(arm)));
      height.push_back(Dot(arm, frame.axis));
      const std::size_t i = way.size();
      way.push_back(i == 0 ? 0
                           : way[i - 1] +
                                 std::hypot(radius[i] - radius[i - 1], height[i] - height[i - 1]));
    }
  }
  // The way to the place on the curve that is nearest to a point of the half plane.
  double WayTo(double r, double h) const {
    double best = std::numeric_limits<double>::infinity(), found = 0;
    for (std::size_t i = 1; i < way.size(); ++i) {
      const double dr = radius[i] - radius[i - 1], dh = height[i] - height[i - 1];
      const double square = dr * dr + dh * dh;
      if (!(square > 0)) continue;
      const double along = (r - radius[i - 1]) * dr + (h - height[i - 1]) * dh;
      const double share = std::clamp(along / square, 0.0, 1.0);
      const double gap = std::hypot(r - radius[i - 1] - share * dr, h - height[i - 1] - share * dh);
      if (gap >= best) continue;
      best = gap;
      found = way[i - 1] + share * std::sqrt(square);
    }
    return found;
  }
};

// Turns every point of the profile to where its circle reaches farthest. The map is the angle
// about the axis by the way along the profile.
StepBulges RevolutionBulges(const Frame& frame, const std::vector<StepPoint>& points) {
  StepBulges bulges;
  if (points.size() < 2) return bulges;
  const Profile profile(frame, points);
  for (std::size_t i = 0; i < points.size(); ++i) {
    const StepPoint foot = frame.origin + frame.axis * profile.height[i];
    for (int k = 0; k < 3; ++k) {
      for (const StepPoint& outward : frame.Outward(k)) {
        bulges.points.push_back(foot + outward * profile.radius[i]);
      }
    }
  }
  const double widest = *std::max_element(profile.radius.begin(), profile.radius.end());
  bulges.flatten = [frame, profile, widest](const StepPoint& p) {
    const StepPoint arm = p - frame.origin;
    const double way = profile.WayTo(Length(frame.Across(arm)), Dot(arm, frame.axis));
    return StepPoint{{frame.Angle(arm) * widest, way, 0}};
  };
  bulges.normal_at = Up;
  bulges.period[0] = kTurn * widest;
  return bulges;
}

}  // namespace

StepBulges ReadStepBulges(const StepFile& file, const StepRecord& any_surface, double scale) {
  const StepRecord* surface = &any_surface;
  for (int i = 0; i < 16 && file.TypeOf(*surface).Has("RECTANGULAR_TRIMMED_SURFACE"); ++i) {
    surface = &file.Arguments(*surface).Reference(1);
  }
  const StepType& type = file.TypeOf(*surface);
  if (IsStepSplineSurface(type)) {
    auto spline = ReadStepSplineSurface(file, *surface, scale);
    return spline ? SplineBulges(std::move(*spline)) : StepBulges();
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
