// Twelve views: names and turns, and what of their places no box shows.
#include "drawing/create/twe_views_rules.h"

#include <gtest/gtest.h>

#include <string>

namespace qm {
namespace {

TEST(TweViewsRules, ALongNameIsCutToItsFirstEightCharacters) {
  EXPECT_EQ(TweViewsDrawingName(L"pump"), L"pump-12");
  EXPECT_EQ(TweViewsDrawingName(std::wstring(28, L'a')), std::wstring(28, L'a') + L"-12");
  EXPECT_EQ(TweViewsDrawingName(std::wstring(29, L'a')), L"aaaaaaaa-12");
  EXPECT_EQ(TweViewsDrawingName(L"泵体零件一二三四" + std::wstring(22, L'x')),
            L"泵体零件一二三四-12");
}

std::string Turns(int dx, int dy, int dz) {
  std::string turns;
  for (const Axis axis : TurnsByExtents(dx, dy, dz)) turns += "xyz"[static_cast<int>(axis)];
  return turns;
}

TEST(TweViewsRules, EveryOrderOfExtentsHasItsTurnsAndATieTheFirstLineThatLetsItIn) {
  EXPECT_EQ(Turns(3, 2, 1), "");
  EXPECT_EQ(Turns(3, 1, 2), "x");
  EXPECT_EQ(Turns(2, 3, 1), "z");
  EXPECT_EQ(Turns(1, 3, 2), "zx");
  EXPECT_EQ(Turns(2, 1, 3), "xz");
  EXPECT_EQ(Turns(1, 2, 3), "y");
  EXPECT_EQ(Turns(1, 1, 1), "");
  EXPECT_EQ(Turns(2, 2, 1), "");
  EXPECT_EQ(Turns(2, 1, 1), "");
  EXPECT_EQ(Turns(2, 1, 2), "x");
  EXPECT_EQ(Turns(1, 2, 1), "zx");  // not z alone
  EXPECT_EQ(Turns(1, 2, 2), "y");
  EXPECT_EQ(Turns(1, 1, 2), "y");
}

TEST(TweViewsRules, ASquareMainViewTurnsToStandUpright) {
  EXPECT_FALSE(MainViewWantsTurn("main-h", 10, 10));
  EXPECT_TRUE(MainViewWantsTurn("main-v", 10, 10));
  EXPECT_TRUE(MainViewWantsTurn("main-h", 10, 10.002));
  EXPECT_FALSE(MainViewWantsTurn("main-v", 10, 10.002));
  EXPECT_FALSE(MainViewWantsTurn("main-h", 10, 10.0005));
  EXPECT_TRUE(MainViewWantsTurn("main-v", 10, 10.0005));
  EXPECT_FALSE(MainViewWantsTurn("", 10, 20));
}

// Where the views stand in the end is measured in twe_views_world_test.cpp; the side on which one
// is made tells the host which one it is.
TEST(TweViewsRules, AProjectionIsMadeAsFarFromItsParentAsThatIsHighOrWide) {
  const SheetBox main = {0, 0, 80, 60};
  const SheetPoint centre = main.Centre();
  EXPECT_EQ(ProjectionPoint(Side::kBelow, main, centre).y, -60);
  EXPECT_EQ(ProjectionPoint(Side::kAbove, main, centre).y, 120);
  EXPECT_EQ(ProjectionPoint(Side::kLeft, main, centre).x, -80);
  EXPECT_EQ(ProjectionPoint(Side::kRight, {130, 0, 155, 60}, centre).x, 155 + 25);
}

// It reaches that far only of models that are very wide for their depth.
TEST(TweViewsRules, TheSecondSetStandsRightOfAWidePictorialView) {
  const SheetBox view3 = {-75, 0, -50, 60};
  const SheetBox view5 = {205, 0, 285, 60};
  const SheetPoint point = SecondMainViewPoint({0, 0, 80, 60}, view3, view5, {0, 0, 300, 1});
  EXPECT_EQ(point.x, 40 + 300 + 25 + 200);
  EXPECT_EQ(point.y, 30);
}

}  // namespace
}  // namespace qm
