// Projects boxes of components on a sheet in painter's order.
#include "workbench/sheet/view_boxes.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "workbench/session/extents.h"

namespace wb {
namespace {

// An assembly may hold itself, or the same models over and over at many levels.
constexpr std::size_t kMostOccurrences = 20'000;
// Drawn of one view, so that twelve of them stay below some 60 KB of picture.
constexpr std::size_t kMostBoxes = 60;
constexpr std::size_t kMostFaces = 90;
// On the sheet, in millimetres: smaller boxes are dots.
constexpr double kLeastSize = 0.2;
// A face is seen from its edge below this part of its length.
constexpr double kEdgeOn = 1e-9;
constexpr std::size_t kDepthAxis = 2;

struct ProjectedBox {
  ShownBoxFaces faces;
  double nearest = 0;
  double size = 0;  // of the rectangle around it
  bool is_dot = false;
};

// The corners of the face of a box at one end of an axis, one after the other around it.
std::array<Point, 4> CornersOf(const Box& box, std::size_t axis, bool upper) {
  const std::size_t u = (axis + 1) % 3;
  const std::size_t v = (axis + 2) % 3;
  std::array<Point, 4> corners;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    corners[i][axis] = upper ? box.max[axis] : box.min[axis];
    corners[i][u] = i == 1 || i == 2 ? box.max[u] : box.min[u];
    corners[i][v] = i >= 2 ? box.max[v] : box.min[v];
  }
  return corners;
}

double Length(const std::array<double, 4>& row) {
  return std::hypot(row[0], row[1], row[2]);
}

// Whether that face looks at the viewer (1), away from him (-1), or is seen from its edge (0).
int Facing(const Placement& placement, std::size_t axis, bool upper) {
  const double towards = placement[axis][kDepthAxis];
  if (std::abs(towards) <= kEdgeOn * Length(placement[axis])) return 0;
  return (towards > 0) == upper ? 1 : -1;
}

ProjectedBox Projected(const Box& box, const Placement& placement) {
  ProjectedBox projected;
  SheetPoint low = {HUGE_VAL, HUGE_VAL};
  SheetPoint high = {-HUGE_VAL, -HUGE_VAL};
  projected.nearest = -HUGE_VAL;
  for (std::size_t side = 0; side < 6; ++side) {
    const std::size_t axis = side / 2;
    const bool upper = side % 2 == 1;
    ShownFace face;
    const auto corners = CornersOf(box, axis, upper);
    for (std::size_t i = 0; i < corners.size(); ++i) {
      const Point at = PlacedAt(corners[i], placement);
      face[i] = {at[0], at[1]};
      projected.nearest = std::max(projected.nearest, at[kDepthAxis]);
      for (std::size_t k = 0; k < 2; ++k) {
        low[k] = std::min(low[k], at[k]);
        high[k] = std::max(high[k], at[k]);
      }
    }
    const int facing = Facing(placement, axis, upper);
    if (facing > 0) projected.faces.front.push_back(face);
    if (facing < 0) projected.faces.back.push_back(face);
  }
  projected.size = (high[0] - low[0]) * (high[1] - low[1]);
  projected.is_dot = std::max(high[0] - low[0], high[1] - low[1]) < kLeastSize;
  return projected;
}

// To the micrometre, in no order.
std::set<std::array<long long, 2>> CornerSet(const ShownBoxFaces& faces) {
  constexpr double kSteps = 1000;
  std::set<std::array<long long, 2>> corners;
  for (const ShownFace& face : faces.front) {
    for (const SheetPoint& at : face) {
      corners.insert({std::llround(at[0] * kSteps), std::llround(at[1] * kSteps)});
    }
  }
  return corners;
}

// Keeps the front one of boxes that lie on each other to the line. `boxes` have the front one last.
void DropCovered(std::vector<ProjectedBox>& boxes) {
  std::set<std::set<std::array<long long, 2>>> seen;
  std::vector<ProjectedBox> kept;
  for (auto box = boxes.rbegin(); box != boxes.rend(); ++box) {
    if (seen.insert(CornerSet(box->faces)).second) kept.push_back(std::move(*box));
  }
  std::ranges::reverse(kept);
  boxes = std::move(kept);
}

// Keeps the largest ones, in their order. The last dot stays: a view shows something.
void DropSmall(std::vector<ProjectedBox>& boxes) {
  std::vector<double> sizes;
  for (const ProjectedBox& box : boxes) sizes.push_back(box.size);
  std::ranges::sort(sizes, std::greater());
  const std::size_t faces_each =
      boxes.empty() ? 1 : std::max<std::size_t>(1, boxes.front().faces.front.size());
  const std::size_t most = std::min(kMostBoxes, kMostFaces / faces_each);
  const double least = sizes.size() > most ? sizes[most - 1] : 0;
  std::size_t kept = 0;
  std::erase_if(boxes, [&](const ProjectedBox& box) {
    const bool drop = box.is_dot || box.size < least || kept >= most;
    if (!drop) ++kept;
    return drop && boxes.size() > 1;
  });
}

}  // namespace

std::vector<PlacedBox> BoxesOf(const Model& model) {
  struct Occurrence {
    const Model* model;
    Placement placement;
  };
  std::vector<PlacedBox> boxes;
  std::vector<Occurrence> pending = {{&model, kIdentityPlacement}};
  for (std::size_t visited = 0; !pending.empty() && visited < kMostOccurrences; ++visited) {
    const Occurrence at = pending.back();
    pending.pop_back();
    const SolidContent* const solid = at.model->As<SolidContent>();
    if (solid == nullptr) continue;
    if (const auto box = OwnExtents(*solid)) boxes.push_back({*box, at.placement});
    for (const Feature& feature : solid->features) {
      if (!IsShown(feature) || pending.size() >= kMostOccurrences) continue;
      pending.push_back({feature.ComponentModel(),
                         PlacedWithin(ComponentPlacement(*at.model, feature), at.placement)});
    }
  }
  return boxes;
}

void DrawBoxes(const std::vector<PlacedBox>& boxes, const Placement& placement, ViewPicture& view) {
  std::vector<ProjectedBox> projected;
  for (const PlacedBox& box : boxes) {
    ProjectedBox at = Projected(box.box, PlacedWithin(box.placement, placement));
    if (std::isfinite(at.nearest) && std::isfinite(at.size)) projected.push_back(std::move(at));
  }
  // By the nearest corner and not by the middle: a shaft lies behind the casing around it.
  std::ranges::stable_sort(projected, {}, &ProjectedBox::nearest);
  DropCovered(projected);
  const std::size_t all = projected.size();
  DropSmall(projected);
  view.left_out = all - projected.size();
  for (ProjectedBox& box : projected) view.boxes.push_back(std::move(box.faces));
}

}  // namespace wb
