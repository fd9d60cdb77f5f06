// What is made of a part's extents before and after a change of its units.
#include "params/assign/unit_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

constexpr Extents kBox = {{-10, 0, 5}, {20, 40, 6}};

Extents Scaled(double factor) {
  Extents scaled = kBox;
  for (size_t axis = 0; axis < 3; ++axis) {
    scaled.low[axis] *= factor;
    scaled.high[axis] *= factor;
  }
  return scaled;
}

TEST(JudgeChange, TellsTheTwoConversionsApartForAllLengths) {
  const double lengths[] = {1, 10, 1000, 25.4, 304.8};
  for (const double from : lengths) {
    for (const double to : lengths) {
      if (from == to) continue;
      const Extents same_size = Scaled(from / to);
      const auto judge = [&](const Extents& after, KeptByConversion kept) {
        return JudgeChange(kBox, after, from, to, kept);
      };
      EXPECT_EQ(judge(same_size, KeptByConversion::kSize), UnitChange::kAsChosen);
      EXPECT_EQ(judge(same_size, KeptByConversion::kNumbers), UnitChange::kAsTheOther);
      EXPECT_EQ(judge(kBox, KeptByConversion::kNumbers), UnitChange::kAsChosen);
      EXPECT_EQ(judge(kBox, KeptByConversion::kSize), UnitChange::kAsTheOther);
    }
  }
}

TEST(JudgeChange, IsAsExactAsATessellationAndSaysNothingOfNothing) {
  EXPECT_EQ(JudgeChange(kBox, Scaled(1.02 / 25.4), 1, 25.4, KeptByConversion::kSize),
            UnitChange::kAsChosen);
  EXPECT_EQ(JudgeChange(kBox, Scaled(0.5), 1, 25.4, KeptByConversion::kSize), UnitChange::kNeither);
  EXPECT_EQ(JudgeChange(Extents{}, Extents{}, 1, 25.4, KeptByConversion::kSize),
            UnitChange::kNeither);
  EXPECT_EQ(SizesText(kBox), L"30 x 40 x 1");
}

}  // namespace
}  // namespace qm
