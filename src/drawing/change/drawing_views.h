// The views of a drawing, each read once.
#pragma once

#include <optional>
#include <vector>

#include "toolkit/drawing_view.h"

namespace qm {

struct DrawingView {
  ProView view = nullptr;
  int sheet = 0;  // 0: the host does not tell, and it lies on none that counts
};

struct CollectedViews {
  ProError status = PRO_TK_E_NOT_FOUND;  // why there are none
  std::vector<DrawingView> views;        // in the order of the host's collection
};
CollectedViews ViewsOf(ProDrawing drawing);

// The views on each sheet in their order; sheet 1 stands first.
std::vector<std::vector<ProView>> BySheet(const std::vector<DrawingView>& views, int sheet_count);

// Number of sheets; 0, after a line in the run log, when the host does not tell one that can be.
int SheetCount(ProDrawing drawing);

// The sheet that the user sees; a failure is logged.
void ShowSheet(ProDrawing drawing, int sheet);

// What the host answers of a view; nothing, after a line in the run log, when it does not.
ProSolid SolidOf(ProDrawing drawing, ProView view);  // null then
bool IsGeneral(ProDrawing drawing, ProView view);    // false then
std::optional<double> ScaleOf(ProDrawing drawing, ProView view);
std::optional<bool> HasOwnScale(ProDrawing drawing, ProView view);
std::optional<double> SheetScale(ProDrawing drawing, ProSolid solid, int sheet);

// Two scales that differ by no more count as one.
inline constexpr double kSameScale = 1e-7;
bool DifferentScales(double a, double b);

}  // namespace qm
