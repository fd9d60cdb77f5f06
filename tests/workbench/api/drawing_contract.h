// The contract of the functions of drawings: a plate 300 x 200 x 40 and its drawing of two sheets.
#pragma once

#include "tests/workbench/api/host_contract.h"
#include "workbench/session/drawing_views.h"

namespace wb {

class DrawingContract : public HostContract {
 protected:
  DrawingContract() {
    Model plate({"plate", ModelKind::kPart});
    plate.solid().surfaces.Add({1, {{0, 0, 0}, {300, 200, 40}}});
    plate_ = &host_.session.Add(std::move(plate));
    Model drawing({"plate", ModelKind::kDrawing});
    drawing.As<DrawingContent>()->shows = ModelLink{plate_->id, plate_};
    drawing.As<DrawingContent>()->sheets.resize(2);
    drw_ = &host_.session.Add(std::move(drawing));
    host_.session.ShowInWindow(*drw_);
  }

  DrawingContent& Drawing() { return *drw_->As<DrawingContent>(); }
  // A general view in the middle of (500, 400) at its own scale of 1.
  ProView GeneralView() {
    ProMatrix orientation = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
    Pro3dPnt place = {500, 400, 0};
    ProView view = nullptr;
    EXPECT_EQ(ProDrawingGeneralviewCreate(drw_->handle, plate_->handle, 1, PRO_B_FALSE, nullptr,
                                          place, 1.0, orientation, &view),
              PRO_TK_NO_ERROR);
    return view;
  }
  ProView Projection(ProView parent, double x, double y) {
    Pro3dPnt place = {x, y, 0};
    ProView view = nullptr;
    EXPECT_EQ(ProDrawingProjectedviewCreate(drw_->handle, parent, PRO_B_FALSE, place, &view),
              PRO_TK_NO_ERROR);
    return view;
  }
  Outline OutlineOf(ProView view) {
    Pro3dPnt corners[2];
    EXPECT_EQ(ProDrawingViewOutlineGet(drw_->handle, view, corners), PRO_TK_NO_ERROR);
    return {corners[0][0], corners[0][1], corners[1][0], corners[1][1]};
  }

  Model* plate_ = nullptr;
  Model* drw_ = nullptr;
};

}  // namespace wb
