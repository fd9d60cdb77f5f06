// Thresholds of the transparency switches, the checks of the host's numbers, and the macro.
#include "display/appearance_rules.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string_view>

#include "display/clear_all_macro.h"

namespace qm {
namespace {

TEST(ModelTransparency, SwitchesBelowOneFifth) {
  EXPECT_EQ(SwitchedModelTransparency(0.0), 0.618);
  EXPECT_EQ(SwitchedModelTransparency(0.1), 0.618);
  EXPECT_EQ(SwitchedModelTransparency(std::nextafter(0.2, 0)), 0.618);
  EXPECT_EQ(SwitchedModelTransparency(0.2), 0.0);
  EXPECT_EQ(SwitchedModelTransparency(0.3), 0.0);
  EXPECT_EQ(SwitchedModelTransparency(0.618), 0.0);
}

TEST(SurfaceTransparency, SwitchesBackWhenNearlyClear) {
  EXPECT_EQ(SwitchedSurfaceTransparency(1.0), 0.0);
  EXPECT_EQ(SwitchedSurfaceTransparency(0.96), 0.0);
  EXPECT_EQ(SwitchedSurfaceTransparency(0.9), 1.0);
  EXPECT_EQ(SwitchedSurfaceTransparency(0.0), 1.0);
  // 1 - 0.95 is a little more than 0.05 in doubles.
  EXPECT_EQ(SwitchedSurfaceTransparency(0.95), 1.0);
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

// The host's users have recorded it so, blanks included.
TEST(ClearAllMacro, KeepsItsIrregularBlanks) {
  const std::wstring_view macro = kClearAllMacro;
  EXPECT_EQ(macro.size(), 474u);
  EXPECT_TRUE(macro.starts_with(L"~ Select `main_dlg_cur` `ProCmdViewGallery.view`; ~ Select"));
  EXPECT_TRUE(macro.ends_with(L"`yes`;~ Activate `UI Message Dialog` `yes`;"));
  EXPECT_NE(macro.find(L"`clearAllAppearance`;~ Close `main_dlg_cur`  `"), macro.npos);
  size_t steps = 0;
  for (const wchar_t c : macro) steps += c == L';';
  EXPECT_EQ(steps, 8u);
}

}  // namespace
}  // namespace qm
