// Twelve views: names, turns and places.
#include "drawing/create/twe_views_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

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

TEST(TweViewsRules, EveryOrderOfExtentsHasItsTurns) {
  EXPECT_EQ(Turns(3, 2, 1), "");
  EXPECT_EQ(Turns(3, 1, 2), "x");
  EXPECT_EQ(Turns(2, 3, 1), "z");
  EXPECT_EQ(Turns(1, 3, 2), "zx");
  EXPECT_EQ(Turns(2, 1, 3), "xz");
  EXPECT_EQ(Turns(1, 2, 3), "y");
}

TEST(TweViewsRules, EqualExtentsTakeTheFirstLineThatLetsThemIn) {
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

// A view of the given size as the sheet shows it after it was made at a point and moved.
SheetBox Placed(SheetPoint at, SheetPoint by, double width, double height) {
  const double x = at.x + by.x - width / 2;
  const double y = at.y + by.y - height / 2;
  return {x, y, x + width, y + height};
}

SheetBox Project(Side side, const SheetBox& parent, SheetPoint centre, double width,
                 double height) {
  const SheetPoint at = ProjectionPoint(side, parent, centre);
  const SheetBox made = Placed(at, {}, width, height);
  return Placed(at, ProjectionMove(side, parent, made), width, height);
}

TEST(TweViewsRules, ProjectionsStandFiftyApartInLineWithTheMainView) {
  // A box of 80 by 60 by 25 around the main view's place.
  const SheetBox main = Placed(kMainViewPoint, {}, 80, 60);
  const SheetPoint centre = main.Centre();
  const SheetBox below = Project(Side::kBelow, main, centre, 80, 25);
  const SheetBox above = Project(Side::kAbove, main, centre, 80, 25);
  const SheetBox left = Project(Side::kLeft, main, centre, 25, 60);
  const SheetBox right = Project(Side::kRight, main, centre, 25, 60);
  const SheetBox back = Project(Side::kRight, right, centre, 80, 60);
  EXPECT_NEAR(main.y1 - below.y2, 50, 1e-9);
  EXPECT_NEAR(above.y1 - main.y2, 50, 1e-9);
  EXPECT_NEAR(main.x1 - left.x2, 50, 1e-9);
  EXPECT_NEAR(right.x1 - main.x2, 50, 1e-9);
  EXPECT_NEAR(back.x1 - right.x2, 50, 1e-9);
  EXPECT_NEAR(below.Centre().x, centre.x, 1e-9);
  EXPECT_NEAR(back.Centre().y, centre.y, 1e-9);
  // Made on the far side of the parent, as far from it as it is high or wide.
  EXPECT_EQ(ProjectionPoint(Side::kBelow, main, centre).y, main.y1 - 60);
  EXPECT_EQ(ProjectionPoint(Side::kRight, right, centre).x, right.x2 + 25);
}

TEST(TweViewsRules, TheSecondSetStandsRightOfWhateverReachesFurthest) {
  const SheetBox main = {0, 0, 80, 60};
  const SheetBox view3 = {-75, 0, -50, 60};
  const SheetBox view5 = {205, 0, 285, 60};
  EXPECT_EQ(SecondMainViewPoint(main, view3, view5, {0, 0, 100, 1}).x, 40 + 285 + 25 + 200);
  EXPECT_EQ(SecondMainViewPoint(main, view3, view5, {0, 0, 300, 1}).x, 40 + 300 + 25 + 200);
  EXPECT_EQ(SecondMainViewPoint(main, view3, view5, {0, 0, 300, 1}).y, 30);
  const SheetBox view1 = {0, -75, 80, -50};
  EXPECT_EQ(PictorialPoint(view1).x, 80);
  EXPECT_EQ(PictorialPoint(view1).y, -75);
  const SheetPoint move = PictorialMove(view1, {30, -125, 130, -25});
  EXPECT_EQ(move.x, (130.0 - 0) / 2 + 50);
  EXPECT_EQ(move.y, -(-25.0 + 75) / 2 - 50);
}

}  // namespace
}  // namespace qm
