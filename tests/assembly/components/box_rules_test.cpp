// Boxes around parts that are turned and placed.
#include "assembly/components/box_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace qm {
namespace {

using Point = std::array<double, 3>;

Point Placed(const Point& point, const Matrix& matrix) {
  Point placed;
  for (size_t axis = 0; axis < 3; ++axis) {
    placed[axis] = matrix.rows[3][axis];
    for (size_t i = 0; i < 3; ++i) placed[axis] += point[i] * matrix.rows[i][axis];
  }
  return placed;
}

// What a host answers for a face that is a cloud of points.
Vector Extreme(const std::vector<Point>& cloud, const Vector& direction) {
  const auto along = [&](const Point& point) {
    return point[0] * direction.xyz[0] + point[1] * direction.xyz[1] + point[2] * direction.xyz[2];
  };
  const auto furthest = std::ranges::max_element(cloud, {}, along);
  return {{(*furthest)[0], (*furthest)[1], (*furthest)[2]}};
}

TEST(Box, OfTurnedPartsIsThatOfAllTheirPointsAtTheirPlaces) {
  std::mt19937 random(20);
  std::uniform_real_distribution<double> number(-50.0, 50.0);
  for (int round = 0; round < 50; ++round) {
    OutlineBox box;
    Point lower = {1e9, 1e9, 1e9};
    Point upper = {-1e9, -1e9, -1e9};
    for (int part = 0; part < 3; ++part) {
      Matrix placement =
          Turned(Turned(Identity(), Axis::kX, number(random) * 3), Axis::kZ, number(random) * 3);
      // A part in other units stands there with a scale.
      const double scale = part == 1 ? 25.4 : 1.0;
      for (int axis = 0; axis < 3; ++axis) {
        for (int row = 0; row < 3; ++row) placement.rows[row][axis] *= scale;
        placement.rows[3][axis] = number(random) * 4;
      }
      Reach reach;
      for (int face = 0; face < 4; ++face) {
        std::vector<Point> cloud(5);
        for (Point& point : cloud) {
          point = {number(random), number(random), number(random)};
          const Point at = Placed(point, placement);
          for (size_t axis = 0; axis < 3; ++axis) {
            lower[axis] = std::min(lower[axis], at[axis]);
            upper[axis] = std::max(upper[axis], at[axis]);
          }
        }
        for (const BoxSide side : kBoxSides) {
          const auto direction = DirectionInPart(placement, side);
          ASSERT_TRUE(direction);
          const auto& [x, y, z] = direction->xyz;
          ASSERT_NEAR(x * x + y * y + z * z, 1.0, 1e-12);
          const Vector extreme = Extreme(cloud, *direction);
          ASSERT_TRUE(reach.Include(side, CoordinateOf(placement, side, extreme)));
        }
      }
      ASSERT_TRUE(reach.is_complete() && reach.AddTo(placement, &box));
    }
    for (size_t axis = 0; axis < 3; ++axis) {
      EXPECT_NEAR(box.Sizes()[axis], upper[axis] - lower[axis], 1e-9);
    }
  }
}

TEST(Box, WithoutSurfacesIsNoBox) {
  Reach reach;
  EXPECT_FALSE(reach.is_complete());
  EXPECT_FALSE(reach.Include(kBoxSides[0], std::nan("")));
  EXPECT_TRUE(reach.Include(kBoxSides[0], 1.0));
  EXPECT_FALSE(reach.is_complete());
}

TEST(Box, OfAFlatPartMayBeTurnedInsideOutByRounding) {
  const auto is_box = [](double lower, double upper) {
    Reach reach;
    for (const BoxSide side : kBoxSides) {
      EXPECT_TRUE(reach.Include(side, side.is_upper ? upper : lower));
    }
    OutlineBox box;
    return reach.AddTo(Identity(), &box);
  };
  EXPECT_TRUE(is_box(5.0 + 1e-12, 5.0));
  EXPECT_FALSE(is_box(6.0, 5.0));
  EXPECT_FALSE(DirectionInPart(Matrix{}, kBoxSides[0]));
}

TEST(Box, IsToldWithItsUnitAndWhatIsNotInIt) {
  OutlineBox box;
  const double lower[3] = {0.0, -10.0, 5.0};
  const double upper[3] = {80.0, 110.5, 11.0};
  ASSERT_TRUE(box.Include(lower, upper));
  const auto sizes = BoxSizes(box, {1, true});
  EXPECT_EQ(sizes, L"120.5×80.0×6.0");
  EXPECT_EQ(BoxSizes(box, {0, false}), L"80×121×6");
  EXPECT_EQ(BoxMessage(box, {1, true}, *sizes, L"mm", 0, true),
            L"\t尺寸：120.5×80.0×6.0 mm\n\t体积：57840.0 mm³\n\t已复制到剪贴板\t");
  EXPECT_EQ(BoxMessage(box, {0, false}, L"80×121×6", L"", 2, false),
            L"\t尺寸：80×121×6\n\t体积：57840\n\t未计入的元件：2\t");
}

TEST(Placement, WithinAPlacementIsOneAfterTheOther) {
  Matrix inner = Turned(Identity(), Axis::kZ, 90.0);
  inner.rows[3][0] = 10.0;
  Matrix outer = Turned(Identity(), Axis::kX, 90.0);
  outer.rows[3][1] = 5.0;
  const Point point = {1.0, 2.0, 3.0};
  const Point expected = Placed(Placed(point, inner), outer);
  const Point got = Placed(point, PlacedWithin(inner, outer));
  for (size_t axis = 0; axis < 3; ++axis) EXPECT_NEAR(got[axis], expected[axis], 1e-12);
}

}  // namespace
}  // namespace qm
