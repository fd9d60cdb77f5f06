// The main view of the sheet that the user looks at, and its scale beside its sheet's. The main
// view is the general view that is preselected, on whatever sheet it lies; else the first one on
// the sheet that has projections, which may lie elsewhere; else the first one.
#pragma once

#include <functional>

#include "toolkit/drawing_view.h"

namespace qm {

struct MainViewScales {
  ProDrawing drawing = nullptr;
  int sheet = 0;  // that the view lies on
  ProView view = nullptr;
  ProSolid solid = nullptr;  // the view's model
  double of_view = 0;
  double of_sheet = 0;  // for that model
};

// Calls `set` when the main view has a scale of its own that is not the sheet's, and regenerates
// the sheet; otherwise the user reads why nothing is done.
ProError AlignScales(const std::function<ProError(const MainViewScales&)>& set);

}  // namespace qm
