// The outline text of models: measure, order, decimals.
#include "frame/text/outline_rules.h"

#include <gtest/gtest.h>

#include <limits>

namespace qm {
namespace {

TEST(OutlineBox, TakesNoCornersThatSpanNoBox) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  OutlineBox box;
  EXPECT_FALSE(box.Include({0, nan, 0}, {1, 1, 1}));
  EXPECT_FALSE(box.Include({0, 0, 0}, {1, std::numeric_limits<double>::infinity(), 1}));
  EXPECT_FALSE(box.Include({0, 0, 2}, {1, 1, 1}));
  EXPECT_TRUE(box.empty());
}

TEST(OutlineText, JoinsTheSizesInAxisOrderOrDescending) {
  const struct {
    std::array<double, 3> sizes;
    int decimals;
    bool descending;
    const wchar_t* text;
  } cases[] = {
      {{6, 120.5, 80}, 1, false, L"6.0×120.5×80.0"},
      {{9, 10, 100}, 0, true, L"100×10×9"},  // by size, not by text
      {{1.0004, 2.0006, 3}, 3, false, L"1.000×2.001×3.000"},
      {{2.25, 0.5, 12.5}, 0, false, L"2×1×13"},  // halves go up
      {{2.25, 0.35, 12.45}, 1, false, L"2.3×0.4×12.5"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(OutlineText(c.sizes, c.decimals, c.descending).value_or(L"none"), c.text)
        << (&c - cases);
  }
}

TEST(OutlineText, IsNothingWhenAParameterCannotHoldIt) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_FALSE(OutlineText({1e300, 1, 1}, 0, false));
  EXPECT_FALSE(OutlineText({1e30, 1e30, 1e30}, 0, false));  // each fits, together they do not
  EXPECT_FALSE(OutlineText({1, infinity, 1}, 0, true));
}

TEST(OutlineDecimals, AreTheLeadingNumberWithinZeroAndSix) {
  const struct {
    const wchar_t* option;
    int decimals;
  } cases[] = {{L"0", 0}, {L"3", 3}, {L" 2 mm", 2}, {L"", 0}, {L"x", 0}, {L"-1", 0}, {L"99", 6}};
  for (const auto& c : cases) EXPECT_EQ(OutlineDecimals(c.option), c.decimals) << (&c - cases);
}

}  // namespace
}  // namespace qm
