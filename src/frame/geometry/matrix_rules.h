// Matrices of views and of placements as the host means them: rows 0 to 2 are the axes, row 3 is
// the shift, and a point stands on their left.
#pragma once

#include <array>
#include <optional>

namespace qm {

struct Matrix {
  double rows[4][4] = {};
};

inline constexpr int kAxisCount = 3;
enum class Axis { kX, kY, kZ };

Matrix Identity();

// A placement within a placement: `inner` followed by `outer`.
Matrix PlacedWithin(const Matrix& inner, const Matrix& outer);

// The rotation entries divided by the length of the first row, which is the view's scale, and no
// shift. Nothing for a first row that has no length.
std::optional<Matrix> Normalised(const Matrix& matrix);

// `matrix` followed by a turn about an axis of the screen, in the sense that takes x to y, y to z
// and z to x.
Matrix Turned(const Matrix& matrix, Axis axis, double degrees);

// Whether the rotation entries agree within what rounding does to them.
bool SameRotation(const Matrix& a, const Matrix& b);

}  // namespace qm
