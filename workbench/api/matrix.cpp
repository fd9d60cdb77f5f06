// Copies matrices and boxes between the plug-in and the session.
#include "workbench/api/matrix.h"

#include <algorithm>

namespace wb {

Placement MatrixIn::Look(const Call& call) const {
  if (matrix == nullptr) call.Fail("null matrix");
  Placement held;
  for (size_t row = 0; row < 4; ++row) std::copy(matrix[row], matrix[row] + 4, held[row].begin());
  return held;
}

void MatrixPlace::operator=(const Placement& held) const {
  for (size_t row = 0; row < 4; ++row) std::ranges::copy(held[row], matrix[row]);
}

MatrixPlace OutMatrix::Look(const Call& call) const {
  if (matrix == nullptr) call.Fail("null matrix");
  return {matrix};
}

void OutMatrix::Empty() const {
  if (matrix != nullptr) MatrixPlace{matrix} = Placement{};
}

void CornersPlace::operator=(const Box& box) const {
  std::ranges::copy(box.min, corners[0]);
  std::ranges::copy(box.max, corners[1]);
}

CornersPlace OutCorners::Look(const Call& call) const {
  if (corners == nullptr) call.Fail("null outline");
  return {corners};
}

void OutCorners::Empty() const {
  if (corners != nullptr) CornersPlace{corners} = Box{};
}

std::string PointIn::Describe() const {
  if (point == nullptr) return "null";
  return "(" + DescribeArgument(point[0]) + " " + DescribeArgument(point[1]) + " " +
         DescribeArgument(point[2]) + ")";
}

const double* PointIn::Look(const Call& call) const {
  if (point == nullptr) call.Fail(std::string("null ") + what);
  return point;
}

Rotation AxesOf(const Placement& placement) {
  Rotation axes;
  for (size_t row = 0; row < 3; ++row) std::copy_n(placement[row].begin(), 3, axes[row].begin());
  return axes;
}

void SetAxes(Placement& placement, const Rotation& axes) {
  for (size_t row = 0; row < 3; ++row) std::ranges::copy(axes[row], placement[row].begin());
}

}  // namespace wb
