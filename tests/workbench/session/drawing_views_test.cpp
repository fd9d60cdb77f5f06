// Views of drawings: where they are, what they show, and what follows when one is moved or turned.
// Expected numbers come from the box of a part, by the rules of projection as a draughtsman says
// them.
#include "workbench/session/drawing_views.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "workbench/session/extents.h"
#include "workbench/session/session.h"

namespace wb {
namespace {

// A plate 300 wide, 200 high and 40 thick, off the origin, its general view "1" at (500, 400).
class DrawingViews : public testing::Test {
 protected:
  DrawingViews() {
    Model plate({"plate", ModelKind::kPart});
    plate.solid().surfaces.Add({1, {{10, -50, 5}, {310, 150, 45}}});
    plate_ = &session_.Add(std::move(plate));
    Model drawing({"plate", ModelKind::kDrawing});
    drawing.content = MadeOf({}, {plate_->id, plate_});
    model_ = &session_.Add(std::move(drawing));
    AddView(Drawing(), {.shows = Drawing().shows, .own_scale = true, .place = {500, 400}});
  }

  DrawingContent& Drawing() { return *model_->As<DrawingContent>(); }
  DrawingView& View(int id) { return *Drawing().views.Find(id); }
  // A projection beside "1", and what its outline measures.
  int Project(int parent, double x, double y) { return *AddProjection(Drawing(), parent, {x, y}); }
  static SheetPoint SizeOf(const Outline& outline) {
    return {outline[2] - outline[0], outline[3] - outline[1]};
  }
  // Where the view shows a point of the model: to the right, up, and towards who looks at it.
  Point Shown(int id, const Point& point) {
    return PlacedAt(point, ViewToDrawing(Drawing(), View(id)));
  }

  Session session_;
  Model* plate_ = nullptr;
  Model* model_ = nullptr;
};

TEST_F(DrawingViews, SidesAreToldByWhereAPointLies) {
  const Outline outline = {0, 0, 300, 100};
  const struct {
    SheetPoint point;
    ViewSide side;
  } cases[] = {
      {{150, -1}, ViewSide::kBelow}, {{150, 101}, ViewSide::kAbove}, {{-1, 50}, ViewSide::kLeft},
      {{301, 50}, ViewSide::kRight}, {{400, 180}, ViewSide::kRight}, {{350, 180}, ViewSide::kAbove},
      {{150, 60}, ViewSide::kAbove}, {{260, 60}, ViewSide::kRight},  {{100, 49}, ViewSide::kLeft},
      {{150, 50}, ViewSide::kNone},
  };
  for (const auto& item : cases) {
    EXPECT_EQ(SideOf(outline, item.point), item.side) << item.point[0] << " " << item.point[1];
  }
}

TEST_F(DrawingViews, ProjectionsShowTheModelInTheFirstAngle) {
  EXPECT_EQ(View(1).outline, (Outline{350, 300, 650, 500}));
  const int below = Project(1, 500, 100);
  const int above = Project(1, 510, 700);
  const int left = Project(1, 100, 390);
  const int right = Project(1, 900, 400);
  const int behind = Project(right, 1300, 400);
  EXPECT_EQ(View(below).outline, (Outline{350, 80, 650, 120}));
  EXPECT_EQ(View(above).outline, (Outline{350, 680, 650, 720}));
  EXPECT_EQ(View(left).outline, (Outline{80, 300, 120, 500}));
  EXPECT_EQ(View(right).outline, (Outline{880, 300, 920, 500}));
  EXPECT_EQ(View(behind).outline, (Outline{1150, 300, 1450, 500}));

  // Who looks sees the face that the view is named after.
  const Point front = {0, 0, 45}, back = {0, 0, 5};
  const Point top = {0, 150, 0}, bottom = {0, -50, 0};
  const Point left_face = {10, 0, 0}, right_face = {310, 0, 0};
  EXPECT_GT(Shown(1, front)[2], Shown(1, back)[2]);
  EXPECT_GT(Shown(below, top)[2], Shown(below, bottom)[2]);
  EXPECT_LT(Shown(below, front)[1], Shown(below, back)[1]);
  EXPECT_GT(Shown(above, bottom)[2], Shown(above, top)[2]);
  EXPECT_GT(Shown(right, left_face)[2], Shown(right, right_face)[2]);
  EXPECT_GT(Shown(left, right_face)[2], Shown(left, left_face)[2]);
  EXPECT_GT(Shown(behind, back)[2], Shown(behind, front)[2]);
}

TEST_F(DrawingViews, TheTransformTakesTheCornersIntoTheOutline) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> degrees(-180, 180);
  View(1).scale = 0.4;
  for (int i = 0; i < 200; ++i) {
    for (const ScreenAxis axis : {ScreenAxis::kX, ScreenAxis::kY, ScreenAxis::kZ}) {
      TurnView(Drawing(), 1, TurnAbout(axis, degrees(random)));
    }
    RegenerateView(Drawing(), 1);
    Outline around = {1e9, 1e9, -1e9, -1e9};
    for (const double x : {10.0, 310.0}) {
      for (const double y : {-50.0, 150.0}) {
        for (const double z : {5.0, 45.0}) {
          const Point corner = Shown(1, {x, y, z});
          around = {std::min(around[0], corner[0]), std::min(around[1], corner[1]),
                    std::max(around[2], corner[0]), std::max(around[3], corner[1])};
        }
      }
    }
    for (size_t k = 0; k < 4; ++k) EXPECT_NEAR(View(1).outline[k], around[k], 1e-9);
    EXPECT_NEAR(View(1).outline[0] + View(1).outline[2], 1000, 1e-9);
  }
}

TEST_F(DrawingViews, ATurnShowsAfterTheRegeneration) {
  const int right = Project(1, 900, 400);
  TurnView(Drawing(), 1, TurnAbout(ScreenAxis::kZ, 90));
  EXPECT_EQ(SizeOf(View(1).outline), (SheetPoint{300, 200}));
  RegenerateView(Drawing(), 1);
  EXPECT_EQ(View(1).outline, (Outline{400, 250, 600, 550}));
  EXPECT_EQ(SizeOf(View(right).outline), (SheetPoint{40, 200}));
  RegenerateSheet(Drawing(), 1);
  EXPECT_EQ(SizeOf(View(right).outline), (SheetPoint{40, 300}));
}

TEST_F(DrawingViews, ProjectionsKeepToTheirAxisAndFollowTheirParent) {
  const int right = Project(1, 900, 390);
  const int behind = Project(right, 1300, 410);
  const int below = Project(right, 900, 100);
  EXPECT_EQ(View(right).place, (SheetPoint{900, 400}));
  MoveView(Drawing(), right, {-7, 33});
  EXPECT_EQ(View(right).place, (SheetPoint{893, 400}));
  EXPECT_EQ(View(behind).place, (SheetPoint{1293, 400}));
  EXPECT_EQ(View(below).place, (SheetPoint{893, 100}));
  MoveView(Drawing(), 1, {1, 2});
  EXPECT_EQ(View(below).place, (SheetPoint{894, 102}));
  MoveView(Drawing(), below, {5, 5});
  EXPECT_EQ(View(below).place, (SheetPoint{894, 107}));
}

TEST_F(DrawingViews, ScalesAreTheirOwnTheirParentsOrTheSheets) {
  const int right = Project(1, 900, 400);
  const int sheet_scaled = AddView(Drawing(), {.shows = Drawing().shows, .place = {0, 0}});
  Drawing().sheets[0].scale = 0.5;
  View(1).scale = 2;
  EXPECT_EQ(ScaleInForce(Drawing(), View(right)), 2);
  EXPECT_EQ(ScaleInForce(Drawing(), View(sheet_scaled)), 0.5);
  SetSheetScale(Drawing().sheets[0], {"PLATE", ModelKind::kPart}, 0.1);
  SetSheetScale(Drawing().sheets[0], {"other", ModelKind::kPart}, 7);
  EXPECT_EQ(ScaleInForce(Drawing(), View(sheet_scaled)), 0.1);
  View(right).own_scale = true;
  View(right).scale = 3;
  EXPECT_EQ(ScaleInForce(Drawing(), View(right)), 3);
  View(1).own_scale = View(right).own_scale = false;
  EXPECT_EQ(ScaleInForce(Drawing(), View(right)), 0.1);
}

TEST_F(DrawingViews, AnAssemblyTakesTheRoomOfWhatItShows) {
  Placement upright = kIdentityPlacement;  // x of the part points up
  upright[0] = {0, 1, 0, 0};
  upright[1] = {-1, 0, 0, 0};
  upright[3] = {1000, 0, 0, 1};
  Placement far_away = kIdentityPlacement;
  far_away[3] = {5000, 5000, 5000, 1};
  Placement lifted = kIdentityPlacement;
  lifted[3] = {0, 0, 100, 1};
  Model pump({"pump", ModelKind::kAssembly});
  ItemList<Feature>& features = pump.solid().features;
  features.Add(NewComponent(1, plate_->id));
  features.Add(NewComponent(2, plate_->id, upright));
  for (const int id : {3, 4, 5}) features.Add(NewComponent(id, plate_->id, far_away));
  features.Find(3)->hidden = true;
  features.Find(4)->status = FeatureStatus::kSuppressed;
  features.Find(5)->visible = false;
  features.Add(NewComponent(6, {"gone", ModelKind::kPart}));
  Model skid({"skid", ModelKind::kAssembly});
  skid.solid().features.Add(NewComponent(1, session_.Add(std::move(pump)).id, lifted));
  const auto extents = ExtentsOf(session_.Add(std::move(skid)));
  ASSERT_TRUE(extents);
  EXPECT_EQ(extents->min, (Point{10, -50, 105}));
  EXPECT_EQ(extents->max, (Point{1050, 310, 145}));
}

TEST_F(DrawingViews, WhatAFileLeavesOutIsFilledIn) {
  ItemList<DrawingView>& views = Drawing().views;
  views.Add({.id = 5, .kind = ViewKind::kProjection, .parent = 6, .place = {1300, 350}});
  views.Add({.id = 6, .kind = ViewKind::kProjection, .parent = 1, .place = {900, 350}});
  // Parents in a ring, and one that is not there.
  views.Add({.id = 7, .kind = ViewKind::kProjection, .parent = 8, .place = {9, 9}});
  views.Add({.id = 8, .kind = ViewKind::kProjection, .parent = 7});
  views.Add({.id = 9, .kind = ViewKind::kProjection, .parent = 77});
  session_.Complete(*model_);
  EXPECT_EQ(View(5).outline, (Outline{1150, 300, 1450, 500}));
  EXPECT_EQ(View(5).side, ViewSide::kRight);
  EXPECT_EQ(View(6).outline, (Outline{880, 300, 920, 500}));
  EXPECT_EQ(View(9).shows->model, plate_);
  EXPECT_GT(ScaleInForce(Drawing(), View(7)), 0);
}

}  // namespace
}  // namespace wb
