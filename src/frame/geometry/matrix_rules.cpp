// Matrices of views.
#include "frame/geometry/matrix_rules.h"

#include <cmath>
#include <numbers>

namespace qm {
namespace {

// Far above what rounding leaves after some turns, far below any turn that is meant.
constexpr double kSameEntry = 1e-6;

}  // namespace

Matrix Identity() {
  Matrix matrix;
  for (int i = 0; i <= kAxisCount; ++i) matrix.rows[i][i] = 1.0;
  return matrix;
}

Matrix PlacedWithin(const Matrix& inner, const Matrix& outer) {
  Matrix placed;
  for (int row = 0; row <= kAxisCount; ++row) {
    for (int column = 0; column <= kAxisCount; ++column) {
      for (int k = 0; k <= kAxisCount; ++k) {
        placed.rows[row][column] += inner.rows[row][k] * outer.rows[k][column];
      }
    }
  }
  return placed;
}

std::optional<Matrix> Normalised(const Matrix& matrix) {
  const double length = std::hypot(matrix.rows[0][0], matrix.rows[0][1], matrix.rows[0][2]);
  if (!std::isfinite(length) || length == 0.0) return std::nullopt;
  Matrix unit = Identity();
  for (int row = 0; row < kAxisCount; ++row) {
    for (int column = 0; column < kAxisCount; ++column) {
      unit.rows[row][column] = matrix.rows[row][column] / length;
    }
  }
  return unit;
}

Matrix Turned(const Matrix& matrix, Axis axis, double degrees) {
  const int from = (static_cast<int>(axis) + 1) % kAxisCount;
  const int to = (from + 1) % kAxisCount;
  const double angle = degrees * std::numbers::pi / 180.0;
  // Quarter turns stay exact: the cosine of 90 degrees is not quite zero in doubles.
  const bool quarter = std::fmod(std::fabs(degrees), 180.0) == 90.0;
  const double cosine = quarter ? 0.0 : std::cos(angle);
  const double sine = quarter ? std::round(std::sin(angle)) : std::sin(angle);
  Matrix turned = matrix;
  for (auto& row : turned.rows) {
    const double a = row[from];
    const double b = row[to];
    row[from] = a * cosine - b * sine;
    row[to] = a * sine + b * cosine;
  }
  return turned;
}

bool SameRotation(const Matrix& a, const Matrix& b) {
  for (int row = 0; row < kAxisCount; ++row) {
    for (int column = 0; column < kAxisCount; ++column) {
      // Written so that no number is the same as none.
      if (!(std::fabs(a.rows[row][column] - b.rows[row][column]) <= kSameEntry)) return false;
    }
  }
  return true;
}

}  // namespace qm
