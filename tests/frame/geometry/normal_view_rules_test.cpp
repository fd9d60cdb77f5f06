// Views snapped to the axes, over all orientations.
#include "frame/geometry/normal_view_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <random>
#include <utility>

namespace qm {
namespace {

using Turn = std::array<std::array<double, 3>, 3>;

Turn FromQuaternion(double w, double x, double y, double z) {
  const double n = std::sqrt(w * w + x * x + y * y + z * z);
  w /= n, x /= n, y /= n, z /= n;
  return {{{1 - 2 * (y * y + z * z), 2 * (x * y - z * w), 2 * (x * z + y * w)},
           {2 * (x * y + z * w), 1 - 2 * (x * x + z * z), 2 * (y * z - x * w)},
           {2 * (x * z - y * w), 2 * (y * z + x * w), 1 - 2 * (x * x + y * y)}}};
}

Matrix Scaled(const Turn& rotation, double scale, std::array<double, 3> shift) {
  Matrix matrix = Identity();
  for (int row = 0; row < 3; ++row) {
    for (int axis = 0; axis < 3; ++axis) matrix.rows[row][axis] = rotation[row][axis] * scale;
  }
  for (int axis = 0; axis < 3; ++axis) matrix.rows[3][axis] = shift[axis];
  return matrix;
}

double Determinant(const Matrix& m) {
  const auto& r = m.rows;
  return r[0][0] * (r[1][1] * r[2][2] - r[1][2] * r[2][1]) -
         r[0][1] * (r[1][0] * r[2][2] - r[1][2] * r[2][0]) +
         r[0][2] * (r[1][0] * r[2][1] - r[1][1] * r[2][0]);
}

// The same, by another way: of all ways to give the three rows different axes, the one in which
// every row keeps its largest component, or else the one that differs in the row that has less.
// Nothing where two ways keep as much as each other, which the rule decides by the rows' order.
std::optional<Turn> SnappedAnotherWay(const Turn& rotation) {
  constexpr double kAsMuch = 1e-5;
  std::array<int, 3> largest;
  for (int row = 0; row < 3; ++row) {
    const auto& r = rotation[row];
    largest[row] = static_cast<int>(
        std::ranges::max_element(r, {}, [](double v) { return std::fabs(v); }) - r.begin());
  }
  std::array<int, 3> axes = {0, 1, 2};
  std::array<int, 3> best = axes;
  double best_kept = -1;
  double second_kept = -1;
  do {
    double kept = 0;
    for (int row = 0; row < 3; ++row) {
      if (axes[row] == largest[row]) kept += 10 + std::fabs(rotation[row][axes[row]]);
    }
    if (kept > best_kept) {
      second_kept = std::exchange(best_kept, kept);
      best = axes;
    } else {
      second_kept = std::max(second_kept, kept);
    }
  } while (std::ranges::next_permutation(axes).found);
  if (best_kept - second_kept <= kAsMuch) return std::nullopt;
  Turn snapped = {};
  for (int row = 0; row < 3; ++row) {
    snapped[row][best[row]] = rotation[row][best[row]] < 0 ? -1 : 1;
  }
  return snapped;
}

TEST(NormalView, AgreesWithAnotherWayOverAllOrientationsAndIsStable) {
  std::mt19937 random(20);
  std::normal_distribution<double> normal;
  std::uniform_real_distribution<double> scale(0.001, 1000);
  int compared = 0;
  for (int i = 0; i < 100'000; ++i) {
    const Turn rotation =
        FromQuaternion(normal(random), normal(random), normal(random), normal(random));
    const auto snapped = NormalView(Scaled(rotation, scale(random), {0, 0, 0}));
    ASSERT_TRUE(snapped);
    const auto wanted = SnappedAnotherWay(rotation);
    const Matrix as_matrix = Scaled(wanted.value_or(Turn{}), 1, {});
    compared += wanted ? 1 : 0;
    if (wanted) {
      ASSERT_TRUE(SameRotation(*snapped, as_matrix)) << i;
    }
    ASSERT_EQ(Determinant(*snapped), 1) << i << ": a mirrored view";
    ASSERT_TRUE(SameRotation(*NormalView(*snapped), *snapped)) << i;
  }
  EXPECT_GT(compared, 99'900);
}

TEST(NormalView, DividesTheShiftByTheScaleThatIsLost) {
  const auto snapped = NormalView(Scaled({{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}, 4, {8, -2, 1}));
  ASSERT_TRUE(snapped);
  EXPECT_EQ(snapped->rows[3][0], 2);
  EXPECT_EQ(snapped->rows[3][1], -0.5);
  EXPECT_EQ(snapped->rows[3][2], 0.25);
  EXPECT_EQ(snapped->rows[3][3], 1);
}

TEST(NormalView, OfTwoRowsThatWantOneAxisTheLesserOneGivesItUp) {
  // Half-way between two axes: equal components count as the first axis for both rows.
  const double half = std::sqrt(0.5);
  const auto snapped = NormalView(Scaled({{{half, half, 0}, {-half, half, 0}, {0, 0, 1}}}, 1, {}));
  ASSERT_TRUE(snapped);
  EXPECT_EQ(snapped->rows[0][0], 1);  // equal: the later row gives way
  EXPECT_EQ(snapped->rows[1][1], 1);
  EXPECT_EQ(snapped->rows[1][0], 0);
}

TEST(NormalView, OfAViewWithoutScaleIsNone) {
  EXPECT_FALSE(NormalView(Matrix{}));
  EXPECT_FALSE(Normalised(Matrix{}));
}

TEST(Matrix, TurnsInTheHandOfTheAxes) {
  const Matrix about_z = Turned(Identity(), Axis::kZ, 90);
  EXPECT_EQ(about_z.rows[0][1], 1);  // x goes to y
  EXPECT_EQ(about_z.rows[1][0], -1);
  EXPECT_EQ(about_z.rows[2][2], 1);
  const Matrix about_x = Turned(Identity(), Axis::kX, 90);
  EXPECT_EQ(about_x.rows[1][2], 1);  // y goes to z
  const Matrix about_y = Turned(Identity(), Axis::kY, -90);
  EXPECT_EQ(about_y.rows[0][2], 1);  // z goes to -x, x to z
  EXPECT_TRUE(SameRotation(Turned(Turned(about_x, Axis::kY, 35), Axis::kY, -35), about_x));
  EXPECT_FALSE(SameRotation(about_x, about_y));
}

}  // namespace
}  // namespace qm
