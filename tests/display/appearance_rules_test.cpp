// Thresholds of the transparency switches and the checks of the host's numbers.
#include "display/appearance_rules.h"

#include <gtest/gtest.h>

#include <cmath>

namespace qm {
namespace {

TEST(ModelTransparency, SwitchesBelowOneFifth) {
  for (const double opaque : {0.0, 0.1, std::nextafter(0.2, 0)}) {
    EXPECT_EQ(SwitchedModelTransparency(opaque), 0.618) << opaque;
  }
  for (const double clear : {0.2, 0.618}) EXPECT_EQ(SwitchedModelTransparency(clear), 0.0) << clear;
}

TEST(SurfaceTransparency, SwitchesBackWhenNearlyClear) {
  for (const double clear : {1.0, 0.96}) EXPECT_EQ(SwitchedSurfaceTransparency(clear), 0.0);
  // 1 - 0.95 is a little more than 0.05 in doubles.
  for (const double opaque : {0.0, 0.9, 0.95}) EXPECT_EQ(SwitchedSurfaceTransparency(opaque), 1.0);
}

TEST(AppearanceNumbers, AreCheckedBeforeTheyAreUsed) {
  EXPECT_TRUE(IsUntouched(AppearanceNumbers{}));
  EXPECT_FALSE(IsUntouched(kDefaultAppearance));
  AppearanceNumbers black = {};
  black.reflection = 0.3;
  EXPECT_FALSE(IsUntouched(black));
  EXPECT_TRUE(AreAppearance(kDefaultAppearance));
  EXPECT_TRUE(AreAppearance(kColouredAppearance));
  AppearanceNumbers shiny = kDefaultAppearance;
  shiny.reflection = 30;
  EXPECT_TRUE(AreAppearance(shiny));
  for (const double wrong : {-0.001, 1.001, 255.0, std::nan("")}) {
    AppearanceNumbers numbers = kDefaultAppearance;
    numbers.highlight_colour[2] = wrong;
    EXPECT_FALSE(AreAppearance(numbers)) << wrong;
    numbers = kDefaultAppearance;
    numbers.transparency = wrong;
    EXPECT_FALSE(AreAppearance(numbers)) << wrong;
  }
}

}  // namespace
}  // namespace qm
