// Twelve views: names, and what of their turns and places no box shows.
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
