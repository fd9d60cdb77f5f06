// Twelve views: the drawing's name, how the model is turned for its main view, and where each view
// stands. Positions are in the units of the drawing.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "frame/geometry/matrix_rules.h"

namespace qm {

// The model's name with "-12"; where the host has no room for that, its first 8 characters with it.
std::wstring TweViewsDrawingName(std::wstring_view model_name);

// Quarter turns, one after the other, that lay a model of these extents on its side: widest across,
// then highest. The extents are whole numbers along the model's axes.
std::span<const Axis> TurnsByExtents(int dx, int dy, int dz);

// Which way the main view is meant to lie, by the name of the radio group's button.
bool MainViewWantsTurn(std::string_view direction, double width, double height);

struct SheetPoint {
  double x = 0;
  double y = 0;
};

// Outline of a view on the sheet: lower left and upper right corner.
struct SheetBox {
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;

  double Width() const { return x2 - x1; }
  double Height() const { return y2 - y1; }
  SheetPoint Centre() const { return {(x1 + x2) / 2, (y1 + y2) / 2}; }
};

// Where a view is whose outline cannot be read any more after a move or a quarter turn.
SheetBox MovedBy(const SheetBox& box, SheetPoint by);
SheetBox QuarterTurned(const SheetBox& box);

enum class Side { kBelow, kAbove, kLeft, kRight };

// The views of a set: the main view, its projections and the pictorial view.
enum class SetView { kMain, k1, k2, k3, k4, k5 };
inline constexpr int kProjectedViews = 5;

struct ProjectionRow {
  SetView view;
  SetView parent;
  Side side;  // of the parent
};
// In the order they are made.
std::span<const ProjectionRow, kProjectedViews> Projections();

// Where a projection is made: on `side` of its parent, in line with the centre of the main view.
SheetPoint ProjectionPoint(Side side, const SheetBox& parent, SheetPoint main_centre);
// By how much it is moved then, so that the two stand a fixed space apart.
SheetPoint ProjectionMove(Side side, const SheetBox& parent, const SheetBox& made);

// The pictorial view is made at the lower right corner of view 1 and moved by this, its outline
// being that after its turns.
SheetPoint PictorialPoint(const SheetBox& view1);
SheetPoint PictorialMove(const SheetBox& view1, const SheetBox& pictorial);

inline constexpr SheetPoint kMainViewPoint = {200, 600};
// Where the main view of the second set is made, in line with the first. `view5` and `pictorial`
// are the right-hand views of the first set, each after its move.
SheetPoint SecondMainViewPoint(const SheetBox& main, const SheetBox& view3, const SheetBox& view5,
                               const SheetBox& pictorial);

}  // namespace qm
