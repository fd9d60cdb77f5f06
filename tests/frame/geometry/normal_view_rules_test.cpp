// Views snapped to the axes, over all orientations.
#include "frame/geometry/normal_view_rules.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <optional>
#include <random>
#include <set>

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

// Each row along the axis that it has most of; nothing where two rows want the same one.
std::optional<Turn> SnappedRowByRow(const Turn& rotation) {
  Turn snapped = {};
  std::set<size_t> taken;
  for (size_t row = 0; row < 3; ++row) {
    size_t most = 0;
    for (size_t axis = 1; axis < 3; ++axis) {
      if (std::fabs(rotation[row][axis]) > std::fabs(rotation[row][most])) most = axis;
    }
    snapped[row][most] = std::copysign(1.0, rotation[row][most]);
    taken.insert(most);
  }
  return taken.size() == 3 ? std::optional(snapped) : std::nullopt;
}

TEST(NormalView, SnapsAllOrientationsWithoutAMirrorAndIsStable) {
  std::mt19937 random(20);
  std::normal_distribution<double> normal;
  std::uniform_real_distribution<double> scale(0.001, 1000);
  int compared = 0;
  for (int i = 0; i < 100'000; ++i) {
    const Turn rotation =
        FromQuaternion(normal(random), normal(random), normal(random), normal(random));
    const auto snapped = NormalView(Scaled(rotation, scale(random), {0, 0, 0}));
    ASSERT_TRUE(snapped);
    if (const auto wanted = SnappedRowByRow(rotation)) {
      ASSERT_TRUE(SameRotation(*snapped, Scaled(*wanted, 1, {}))) << i;
      ++compared;
    }
    ASSERT_EQ(Determinant(*snapped), 1) << i << ": a mirrored view";
    ASSERT_TRUE(SameRotation(*NormalView(*snapped), *snapped)) << i;
  }
  EXPECT_GT(compared, 80'000);
}

TEST(NormalView, OfTwoRowsThatWantOneAxisTheLesserOneGivesItUp) {
  const double half = std::sqrt(0.5);
  const struct {
    Turn rotation, snapped;
  } cases[] = {
      {{{{21, 18, -14}, {22, -21, 6}, {-6, -14, -27}}}, {{{0, 1, 0}, {1, 0, 0}, {0, 0, -1}}}},
      {{{{19, 42, 30}, {30, -35, 30}, {42, 6, -35}}}, {{{0, 1, 0}, {0, 0, 1}, {1, 0, 0}}}},
      // Half-way: equal components count as the first axis for both rows, and the later one gives
      // way.
      {{{{half, half, 0}, {-half, half, 0}, {0, 0, 1}}}, {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
  };
  for (const auto& c : cases) {
    const auto snapped = NormalView(Scaled(c.rotation, 1, {}));
    ASSERT_TRUE(snapped);
    EXPECT_TRUE(SameRotation(*snapped, Scaled(c.snapped, 1, {}))) << (&c - cases);
  }
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
