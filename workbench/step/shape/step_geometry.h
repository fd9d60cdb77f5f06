// Points, placements and length units of STEP geometry, everything in millimetres.
#pragma once

#include <cstddef>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "workbench/step/file/step_file.h"

namespace wb {

struct StepPoint {
  double xyz[3] = {};
  double& operator[](std::size_t k) { return xyz[k]; }
  double operator[](std::size_t k) const { return xyz[k]; }
};

inline StepPoint operator+(const StepPoint& a, const StepPoint& b) {
  return {{a[0] + b[0], a[1] + b[1], a[2] + b[2]}};
}
inline StepPoint operator-(const StepPoint& a, const StepPoint& b) {
  return {{a[0] - b[0], a[1] - b[1], a[2] - b[2]}};
}
inline StepPoint operator*(const StepPoint& a, double f) {
  return {{a[0] * f, a[1] * f, a[2] * f}};
}
inline double Dot(const StepPoint& a, const StepPoint& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
StepPoint Cross(const StepPoint& a, const StepPoint& b);
double Length(const StepPoint& a);
// `a` at length 1, or `otherwise` when it has no direction.
StepPoint Unit(const StepPoint& a, const StepPoint& otherwise);

// An axis-parallel box in millimetres; empty until a point is added.
struct StepBox {
  StepPoint min = Filled(std::numeric_limits<double>::infinity());
  StepPoint max = Filled(-std::numeric_limits<double>::infinity());

  bool empty() const { return min[0] > max[0]; }
  // Points up to `slack` millimetres outside count as inside.
  bool Holds(const StepPoint& point, double slack = 0) const;
  void Add(const StepPoint& point);
  void Add(const StepBox& box);

 private:
  static StepPoint Filled(double value) { return {{value, value, value}}; }
};

// Where a component stands in its assembly. Points are rows: (x y z 1) * m. Rows 0 to 2 are the
// component's x, y and z axes, row 3 its origin in millimetres, seen from the assembly; column 3
// is 0 0 0 1. Axes are unit vectors unless the file asks for a scaled or mirrored component.
struct StepPlacement {
  double m[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
};

// First `first`, then `second`.
StepPlacement Then(const StepPlacement& first, const StepPlacement& second);
// Throws nothing; a placement without an inverse (flat scale) gives the identity.
StepPlacement Inverse(const StepPlacement& placement);
StepPoint Transform(const StepPoint& point, const StepPlacement& placement);
StepBox Transform(const StepBox& box, const StepPlacement& placement);

// Millimetres in one length unit of each representation context; every context is read once.
class StepUnits {
 public:
  explicit StepUnits(const StepFile& file) : file_(file) {}
  // `representation` is any REPRESENTATION; one without a length unit counts as millimetres and
  // sets `guessed`.
  double ScaleOf(const StepRecord& representation);
  bool guessed() const { return guessed_; }
  // Of the units met so far, such as "inch (25.4 mm)".
  const std::vector<std::string>& names() const { return names_; }

 private:
  double ReadContext(const StepRecord& context);
  double ReadUnit(const StepRecord& unit) const;
  void KeepName(const StepRecord& unit, double scale);

  const StepFile& file_;
  std::map<const StepRecord*, double> scales_;  // by context
  std::vector<std::string> names_;
  bool guessed_ = false;
};

// CARTESIAN_POINT and DIRECTION; two-dimensional ones lie in z = 0.
StepPoint ReadStepPoint(const StepFile& file, const StepRecord& record, double scale);
StepPoint ReadStepDirection(const StepFile& file, const StepRecord* record,
                            const StepPoint& otherwise);
// AXIS1_PLACEMENT, AXIS2_PLACEMENT_2D/3D or CARTESIAN_TRANSFORMATION_OPERATOR_3D as the placement
// of its own coordinates in those around it. Any other type is an error.
StepPlacement ReadStepPlacement(const StepFile& file, const StepRecord& record, double scale);

}  // namespace wb
