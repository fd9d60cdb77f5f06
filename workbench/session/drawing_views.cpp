// Geometry of the views of drawings.
#include "workbench/session/drawing_views.h"

#include <algorithm>
#include <cmath>

#include "workbench/session/extents.h"

namespace wb {
namespace {

bool IsBeside(ViewSide side) {
  return side == ViewSide::kLeft || side == ViewSide::kRight;
}

const DrawingView* ParentOf(const DrawingContent& drawing, const DrawingView& view) {
  return view.parent == 0 ? nullptr : drawing.views.Find(view.parent);
}

// How many parents stand above a view; parents that a file names in a ring end at the view itself.
size_t DepthOf(const DrawingContent& drawing, const DrawingView& view) {
  size_t depth = 0;
  for (const DrawingView* at = ParentOf(drawing, view); at != nullptr && at != &view;
       at = ParentOf(drawing, *at)) {
    if (++depth > drawing.views.size()) break;
  }
  return depth;
}

bool IsKnown(const Outline& outline) {
  return outline != Outline{};
}

Model* ShownBy(const DrawingView& view) {
  return view.shows ? view.shows->model : nullptr;
}

// The model's extents as the view shows them, unscaled, in the directions of the sheet.
Outline ProjectedExtents(const DrawingView& view) {
  const Model* const model = ShownBy(view);
  const auto extents = model == nullptr ? std::nullopt : ExtentsOf(*model);
  if (!extents) return {};
  Outline outline{};
  for (size_t axis = 0; axis < 2; ++axis) {
    for (size_t row = 0; row < 3; ++row) {
      const double a = extents->min[row] * view.orientation[row][axis];
      const double b = extents->max[row] * view.orientation[row][axis];
      outline[axis] += std::min(a, b);
      outline[axis + 2] += std::max(a, b);
    }
  }
  return outline;
}

void Shift(DrawingView& view, const SheetPoint& by) {
  for (size_t axis = 0; axis < 2; ++axis) {
    view.place[axis] += by[axis];
    if (!IsKnown(view.outline)) continue;
    view.outline[axis] += by[axis];
    view.outline[axis + 2] += by[axis];
  }
}

// What a projection takes from its parent.
void FollowParent(const DrawingContent& drawing, DrawingView& view) {
  const DrawingView* const parent = ParentOf(drawing, view);
  if (view.kind != ViewKind::kProjection || parent == nullptr) return;
  if (view.side == ViewSide::kNone) view.side = SideOf(parent->outline, view.place);
  view.orientation = ProjectedOrientation(parent->orientation, view.side);
  view.sheet = parent->sheet;
  if (!view.shows) view.shows = parent->shows;
  if (view.side == ViewSide::kNone) return;
  const size_t shared = IsBeside(view.side) ? 1 : 0;
  view.place[shared] = parent->place[shared];
}

}  // namespace

ViewSide SideOf(const Outline& outline, const SheetPoint& point) {
  // From the middle, as parts of half the size; beyond, as lengths.
  struct Way {
    double from_middle;
    double beyond;
  };
  const auto way = [&](size_t axis) {
    const double half = (outline[axis + 2] - outline[axis]) / 2;
    const double from_middle = point[axis] - (outline[axis] + outline[axis + 2]) / 2;
    return Way{from_middle, std::abs(from_middle) - half};
  };
  const Way x = way(0);
  const Way y = way(1);
  if (x.from_middle == 0 && y.from_middle == 0) return ViewSide::kNone;
  const bool inside = x.beyond < 0 && y.beyond < 0;
  const double width = outline[2] - outline[0];
  const double height = outline[3] - outline[1];
  const bool beside = inside ? std::abs(x.from_middle) * height > std::abs(y.from_middle) * width
                             : x.beyond > y.beyond;
  if (beside) return x.from_middle < 0 ? ViewSide::kLeft : ViewSide::kRight;
  return y.from_middle < 0 ? ViewSide::kBelow : ViewSide::kAbove;
}

Rotation ProjectedOrientation(const Rotation& parent, ViewSide side) {
  switch (side) {
    case ViewSide::kLeft:
      return Turned(parent, TurnAbout(ScreenAxis::kY, -90));
    case ViewSide::kRight:
      return Turned(parent, TurnAbout(ScreenAxis::kY, 90));
    case ViewSide::kAbove:
      return Turned(parent, TurnAbout(ScreenAxis::kX, -90));
    case ViewSide::kBelow:
      return Turned(parent, TurnAbout(ScreenAxis::kX, 90));
    case ViewSide::kNone:
      break;
  }
  return parent;
}

double ScaleInForce(const DrawingContent& drawing, const DrawingView& view) {
  const DrawingView* at = &view;
  for (size_t depth = DepthOf(drawing, view); !at->own_scale && depth > 0; --depth) {
    at = ParentOf(drawing, *at);
  }
  if (at->own_scale) return at->scale;
  const Sheet* const sheet = FindSheet(drawing, at->sheet);
  if (sheet == nullptr) return 1.0;
  return at->shows ? SheetScale(*sheet, at->shows->name) : sheet->scale;
}

Outline FreshOutline(const DrawingContent& drawing, const DrawingView& view) {
  const Outline extents = ProjectedExtents(view);
  const double scale = ScaleInForce(drawing, view);
  Outline outline;
  for (size_t axis = 0; axis < 2; ++axis) {
    const double half = scale * (extents[axis + 2] - extents[axis]) / 2;
    outline[axis] = view.place[axis] - half;
    outline[axis + 2] = view.place[axis] + half;
  }
  return outline;
}

Placement ViewToDrawing(const DrawingContent& drawing, const DrawingView& view) {
  const Outline extents = ProjectedExtents(view);
  const double scale = ScaleInForce(drawing, view);
  Placement placement = kIdentityPlacement;
  for (size_t row = 0; row < 3; ++row) {
    for (size_t axis = 0; axis < 3; ++axis) {
      placement[row][axis] = scale * view.orientation[row][axis];
    }
  }
  for (size_t axis = 0; axis < 2; ++axis) {
    placement[3][axis] = view.place[axis] - scale * (extents[axis] + extents[axis + 2]) / 2;
  }
  return placement;
}

int AddView(DrawingContent& drawing, DrawingView view) {
  view.id = NextId(drawing.views);
  const int id = view.id;
  drawing.views.Add(std::move(view));
  RegenerateView(drawing, id);
  return id;
}

std::optional<int> AddProjection(DrawingContent& drawing, int parent, const SheetPoint& beside) {
  DrawingView view;
  view.kind = ViewKind::kProjection;
  view.parent = parent;
  view.place = beside;
  FollowParent(drawing, view);
  if (view.side == ViewSide::kNone) return std::nullopt;
  return AddView(drawing, std::move(view));
}

std::vector<int> ViewsBelow(const DrawingContent& drawing, int id) {
  std::vector<int> below;
  std::vector<int> pending = {id};
  while (!pending.empty()) {
    const int parent = pending.back();
    pending.pop_back();
    for (const DrawingView& view : drawing.views) {
      if (view.parent != parent || view.id == id) continue;
      if (std::ranges::find(below, view.id) != below.end()) continue;
      below.push_back(view.id);
      pending.push_back(view.id);
    }
  }
  return below;
}

void MoveView(DrawingContent& drawing, int id, const SheetPoint& by) {
  DrawingView& view = *drawing.views.Find(id);
  SheetPoint along = by;
  if (view.side != ViewSide::kNone) along[IsBeside(view.side) ? 1 : 0] = 0;
  Shift(view, along);
  for (const int below : ViewsBelow(drawing, id)) Shift(*drawing.views.Find(below), along);
}

void TurnView(DrawingContent& drawing, int id, const Rotation& turn) {
  DrawingView& view = *drawing.views.Find(id);
  view.orientation = Turned(view.orientation, turn);
  // Parents stand before what is below them.
  for (const int below : ViewsBelow(drawing, id)) {
    FollowParent(drawing, *drawing.views.Find(below));
  }
}

void RegenerateView(DrawingContent& drawing, int id) {
  DrawingView& view = *drawing.views.Find(id);
  view.outline = FreshOutline(drawing, view);
}

void RegenerateSheet(DrawingContent& drawing, int sheet) {
  for (DrawingView& view : drawing.views) {
    if (view.sheet == sheet) view.outline = FreshOutline(drawing, view);
  }
}

void CompleteViews(DrawingContent& drawing) {
  std::vector<std::pair<size_t, int>> by_depth;
  for (const DrawingView& view : drawing.views) {
    by_depth.emplace_back(DepthOf(drawing, view), view.id);
  }
  std::ranges::stable_sort(by_depth, {}, &std::pair<size_t, int>::first);
  for (const auto& [depth, id] : by_depth) {
    DrawingView& view = *drawing.views.Find(id);
    FollowParent(drawing, view);
    if (!view.shows) view.shows = drawing.shows;
    if (!IsKnown(view.outline) && ShownBy(view) != nullptr) RegenerateView(drawing, id);
  }
}

}  // namespace wb
