// Views of drawings: where they are on their sheet, how they are turned, and what follows when one
// is moved, turned or regenerated.
//
// Projections are in the first angle: a view below its parent shows the model from above, one on
// the right shows it from the left.
#pragma once

#include <string_view>
#include <vector>

#include "workbench/session/drawing.h"
#include "workbench/session/model.h"

namespace wb {

// The side of an outline on which a point lies: the one that it is furthest beyond. A point inside
// lies on the side that it is relatively nearest to; the very middle on none.
ViewSide SideOf(const Outline& outline, const SheetPoint& point);

// How a projection on that side of its parent shows the model.
Rotation ProjectedOrientation(const Rotation& parent, ViewSide side);

// The scale in force: the view's own, its parent's, or that of its sheet for its model.
double ScaleInForce(const DrawingContent& drawing, const DrawingView& view);

// What the outline is after a regeneration: the model's extents as the view shows them, around its
// place; a point for a view that shows nothing.
Outline FreshOutline(const DrawingContent& drawing, const DrawingView& view);

// From the model to the sheet: rows are the model's axes times the scale, row 3 is where its origin
// lies.
Placement ViewToDrawing(const DrawingContent& drawing, const DrawingView& view);

// A new general view, its outline fresh; `view` has all but an id.
int AddView(DrawingContent& drawing, DrawingView view);
// A new projection near a point; no value for a point in the very middle of the parent's outline.
std::optional<int> AddProjection(DrawingContent& drawing, int parent, const SheetPoint& beside);
// Ids of the views that are projected from it, directly or through others.
std::vector<int> ViewsBelow(const DrawingContent& drawing, int id);

// A projection keeps to its axis; views below it follow.
void MoveView(DrawingContent& drawing, int id, const SheetPoint& by);
// About its place. Its outline and those of the views below it stay what they were until these are
// regenerated.
void TurnView(DrawingContent& drawing, int id, const Rotation& turn);
void RegenerateView(DrawingContent& drawing, int id);
void RegenerateSheet(DrawingContent& drawing, int sheet);

// Fills in what a script or a file has left out: what views show, how and where projections lie,
// and outlines.
void CompleteViews(DrawingContent& drawing);

}  // namespace wb
