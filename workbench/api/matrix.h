// Matrices and boxes as arguments.
#pragma once

#include <string>

#include "workbench/host/call.h"
#include "workbench/session/rotation.h"

namespace wb {

// A matrix of the plug-in's own, as it is given.
struct MatrixIn {
  const double (*matrix)[4];
  std::string Describe() const { return matrix == nullptr ? "null" : "matrix"; }
  Placement Look(const Call& call) const;
};

// A matrix that the call fills in.
struct MatrixPlace {
  double (*matrix)[4];
  void operator=(const Placement& held) const;
};
struct OutMatrix {
  double (*matrix)[4];
  std::string Describe() const { return matrix == nullptr ? "null" : "->"; }
  MatrixPlace Look(const Call& call) const;
  void Empty() const;
};

// Two corners that the call fills in.
struct CornersPlace {
  double (*corners)[3];
  void operator=(const Box& box) const;
};
struct OutCorners {
  double (*corners)[3];
  std::string Describe() const { return corners == nullptr ? "null" : "->"; }
  CornersPlace Look(const Call& call) const;
  void Empty() const;
};

// A point or a vector of the plug-in's own.
struct PointIn {
  const double* point;
  const char* what;
  std::string Describe() const;
  const double* Look(const Call& call) const;
};

Rotation AxesOf(const Placement& placement);
void SetAxes(Placement& placement, const Rotation& axes);

}  // namespace wb
