// What is no box, and the text of one. Boxes of turned parts: random_structure_test.cpp.
#include "assembly/components/box_rules.h"

#include <gtest/gtest.h>

#include <cmath>

namespace qm {
namespace {

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

TEST(Box, IsToldWithoutAUnitThatIsNotKnown) {
  OutlineBox box;
  const double lower[3] = {0.0, -10.0, 5.0};
  const double upper[3] = {80.0, 110.5, 11.0};
  ASSERT_TRUE(box.Include(lower, upper));
  const auto sizes = BoxSizes(box, {0, false});
  EXPECT_EQ(BoxMessage(box, {0, false}, sizes.value_or(L""), L"", 2, false),
            L"\t尺寸：80×121×6\n\t体积：57840\n\t未计入的元件：2\t");
}

}  // namespace
}  // namespace qm
