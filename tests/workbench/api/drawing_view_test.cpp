// Views of drawings, as a plug-in makes, turns, moves and reads them.
#include "tests/workbench/api/drawing_contract.h"

namespace wb {
namespace {

ProMatrix kUpright = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
ProMatrix kDoubled = {{2, 0, 0, 0}, {0, 2, 0, 0}, {0, 0, 2, 0}, {0, 0, 0, 1}};
wchar_t kNormal[] = L"Normal";
wchar_t kVertical[] = L"Vertical";

TEST_F(DrawingContract, WhatIsWrongWithANewViewHasItsStatus) {
  Pro3dPnt place = {0, 0, 0};
  ProView view = nullptr;
  const auto make = [&](ProSolid solid, int sheet, bool exploded, double scale, ProMatrix matrix) {
    return ProDrawingGeneralviewCreate(drw_->handle, solid, sheet,
                                       exploded ? PRO_B_TRUE : PRO_B_FALSE, nullptr, place, scale,
                                       matrix, &view);
  };
  const ProView front = GeneralView();
  Pro3dPnt middle = {500, 400, 0};
  Check({
      {"no such sheet", [&] { return make(plate_->handle, 3, false, 1, kUpright); },
       PRO_TK_CRE_VIEW_BAD_SHEET},
      {"foreign", [&] { return make(lid_->handle, 1, false, 1, kUpright); },
       PRO_TK_CRE_VIEW_BAD_MODEL},
      {"exploded part", [&] { return make(plate_->handle, 1, true, 1, kUpright); },
       PRO_TK_CRE_VIEW_BAD_EXPLODE},
      {"no scale", [&] { return make(plate_->handle, 1, false, 0, kUpright); }, PRO_TK_BAD_INPUTS},
      {"scaled", [&] { return make(plate_->handle, 1, false, 1, kDoubled); }, PRO_TK_BAD_INPUTS},
      {"in the middle of its parent",
       [&] {
         return ProDrawingProjectedviewCreate(drw_->handle, front, PRO_B_FALSE, middle, &view);
       },
       PRO_TK_CRE_VIEW_BAD_PARENT},
  });
  EXPECT_EQ(Drawing().views.size(), 1u);
}

TEST_F(DrawingContract, ViewsAreKnownByTheirLiveHandlesInTheirDrawing) {
  const ProView front = GeneralView();
  const ProView below = Projection(front, 500, 100);
  int sheet = 0;
  wchar_t sideways[] = L"Sideways";
  Check({
      {"of another drawing",
       [&] { return ProDrawingViewSheetGet(drawing_->handle, front, &sheet); }, PRO_TK_BAD_INPUTS,
       "ProDrawingViewSheetGet: a view of another drawing"},
      {"a turned projection",
       [&] {
         return ProDrawingViewOrientationFromAngleSet(drw_->handle, below, kNormal, nullptr, 90);
       },
       PRO_TK_INVALID_TYPE},
      {"an unknown reference",
       [&] {
         return ProDrawingViewOrientationFromAngleSet(drw_->handle, front, sideways, nullptr, 90);
       },
       PRO_TK_BAD_INPUTS, "ProDrawingViewOrientationFromAngleSet: reference \"Sideways\""},
      {"a scale that is the parent's",
       [&] { return ProDrawingViewScaleSet(drw_->handle, below, 2); }, PRO_TK_CANT_MODIFY},
      {"a parent without its children",
       [&] { return ProDrawingViewDelete(drw_->handle, front, PRO_B_FALSE); }, PRO_TK_BAD_CONTEXT},
      {"deleted", [&] { return ProDrawingViewDelete(drw_->handle, front, PRO_B_TRUE); },
       PRO_TK_NO_ERROR},
      {"gone with its parent", [&] { return ProDrawingViewSheetGet(drw_->handle, below, &sheet); },
       PRO_TK_BAD_INPUTS, "ProDrawingViewSheetGet: stale view handle (its object is gone)"},
  });
  ProView* views = nullptr;
  EXPECT_EQ(ProDrawingViewsCollect(drw_->handle, &views), PRO_TK_E_NOT_FOUND);
  host_.habits.empty_collection_succeeds = true;
  EXPECT_EQ(ProDrawingViewsCollect(drw_->handle, &views), PRO_TK_NO_ERROR);
  EXPECT_EQ(views, nullptr);
}

TEST_F(DrawingContract, TurnsGoAsTheHostHasIt) {
  const auto turned = [&](bool Habits::*habit) {
    const ProView view = GeneralView();
    host_.habits = {};
    if (habit != nullptr) host_.habits.*habit = true;
    const ProError status =
        ProDrawingViewOrientationFromAngleSet(drw_->handle, view, kVertical, nullptr, 90);
    ProMatrix matrix;
    ProDrawingViewTransformGet(drw_->handle, view, PRO_B_TRUE, matrix);
    return status == PRO_TK_NO_ERROR ? FactText(std::vector<double>(matrix[0], matrix[2] + 4))
                                     : "refused";
  };
  EXPECT_EQ(turned(nullptr), "0 0 -1 0 0 1 0 0 1 0 0 0");
  EXPECT_EQ(turned(&Habits::view_turns_the_other_way), "0 0 1 0 0 1 0 0 -1 0 0 0");
  EXPECT_EQ(turned(&Habits::view_turns_about_the_other_axis), "1 0 0 0 0 0 1 0 0 -1 0 0");
  EXPECT_EQ(turned(&Habits::view_turn_is_refused), "refused");
}

TEST_F(DrawingContract, EveryFieldOfTheDisplayIsApplied) {
  const ProView view = GeneralView();
  ProDrawingViewDisplay display = {
      PRO_DISPSTYLE_NO_HIDDEN, PRO_B_TRUE, 15, 1, PRO_B_FALSE, PRO_B_TRUE};
  EXPECT_EQ(ProDrawingViewDisplaySet(drw_->handle, view, &display), PRO_TK_NO_ERROR);
  const ViewDisplay& held = Drawing().views[0].display;
  EXPECT_EQ(held.style, DisplayStyle::kNoHidden);
  EXPECT_TRUE(held.quilt_hlr);
  EXPECT_EQ(held.tangent_edges, 15);
  EXPECT_EQ(held.cable, 1);
  EXPECT_FALSE(held.concept_model);
  EXPECT_TRUE(held.weld_xsec);
  host_.habits.view_display_has_flags_last = true;
  ProDrawingViewDisplay other{};
  EXPECT_EQ(ProDrawingViewDisplayGet(drw_->handle, view, &other), PRO_TK_NO_ERROR);
  EXPECT_EQ(static_cast<int>(other.quilt_hlr), 15) << "where the tangent edges are then";
  EXPECT_EQ(ProDrawingViewDisplaySet(drw_->handle, view, &other), PRO_TK_NO_ERROR);
  EXPECT_EQ(held.tangent_edges, 15);
  EXPECT_EQ(ProDrawingViewDisplaySet(drw_->handle, view, &display), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches(), Lines());
  host_.habits = {};
  display.quilt_hlr = static_cast<ProBoolean>(15);
  EXPECT_EQ(ProDrawingViewDisplaySet(drw_->handle, view, &display), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches(), Lines{"plug-in misused ProDrawingViewDisplaySet: a flag that is 15"});
}

TEST_F(DrawingContract, PlacesCanBeThoseOfTheScreen) {
  Placement& transform = Drawing().sheets[0].transform;
  transform[0][0] = transform[1][1] = 2;
  transform[3] = {100, 0, 0, 1};
  host_.habits.view_places_are_on_the_screen = true;
  const ProView view = GeneralView();
  EXPECT_EQ(Drawing().views[0].place, (SheetPoint{1100, 800}));
  EXPECT_EQ(OutlineOf(view), (Outline{425, 350, 575, 450}));
  ProVector by = {10, 5, 0};
  EXPECT_EQ(ProDrawingViewMove(drw_->handle, view, by), PRO_TK_NO_ERROR);
  EXPECT_EQ(Drawing().views[0].place, (SheetPoint{1120, 810}));
}

}  // namespace
}  // namespace wb
