// Takes pictures of assemblies.
#include "workbench/scene/scene.h"

#include <algorithm>
#include <cmath>

#include "workbench/scene/painters_order.h"
#include "workbench/session/extents.h"

namespace wb {
namespace {

// An assembly may hold the same models over and over at many levels.
constexpr std::size_t kMostOccurrencesSeen = 50'000;

// From the front, the right and above, the model's z upright.
const double kSide = std::sqrt(1.0 / 2);
const double kRise = std::sqrt(1.0 / 6);
const double kDepth = std::sqrt(1.0 / 3);
const Placement kViewFromCorner = {{{kSide, -kRise, kDepth, 0},
                                    {kSide, kRise, -kDepth, 0},
                                    {0, 2 * kRise, kDepth, 0},
                                    {0, 0, 0, 1}}};

// The light comes over the viewer's left shoulder; no face is darker than this.
constexpr Point kLight = {-0.36, 0.8, 0.48};
constexpr double kLeastLight = 0.55;

// A part as it lies in the assembly.
struct PlacedModel {
  const Model* model;
  Placement placement;               // seen by the viewer
  const Appearance* look = nullptr;  // of the nearest assembly above that has one
};

// The largest surface's appearance where each surface has one of its own; null otherwise.
const Appearance* LookOfSurfaces(const SolidContent& solid) {
  const Appearance* look = nullptr;
  double largest = -1;
  for (const Surface& surface : solid.surfaces) {
    if (!surface.appearance) return nullptr;
    double size = 0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
      size = std::max(size, surface.box.max[axis] - surface.box.min[axis]);
    }
    if (size > largest) {
      largest = size;
      look = &*surface.appearance;
    }
  }
  return look;
}

const Appearance* LookOf(const SolidContent& solid, const Appearance* above) {
  if (const Appearance* const of_surfaces = LookOfSurfaces(solid)) return of_surfaces;
  return solid.appearance ? &*solid.appearance : above;
}

struct SeenPart {
  const Model* model;
  Appearance look;
  SeenBox box;
  double size;  // of the rectangle around it
};

double SizeOf(const SeenBox& box) {
  ScenePoint low = {HUGE_VAL, HUGE_VAL};
  ScenePoint high = {-HUGE_VAL, -HUGE_VAL};
  for (const Point& corner : box.corners) {
    for (std::size_t axis = 0; axis < 2; ++axis) {
      low[axis] = std::min(low[axis], corner[axis]);
      high[axis] = std::max(high[axis], corner[axis]);
    }
  }
  return std::hypot(high[0] - low[0], high[1] - low[1]);
}

std::vector<SeenPart> PartsIn(const Model& top) {
  std::vector<SeenPart> parts;
  std::vector<PlacedModel> pending = {{&top, kViewFromCorner}};
  for (std::size_t met = 0; !pending.empty() && met < kMostOccurrencesSeen; ++met) {
    const PlacedModel at = pending.back();
    pending.pop_back();
    const SolidContent* const solid = at.model->As<SolidContent>();
    if (solid == nullptr) continue;
    const Appearance* const look = LookOf(*solid, at.look);
    if (const auto extents = OwnExtents(*solid)) {
      const SeenBox box = SeenFrom(*extents, at.placement);
      const double size = SizeOf(box);
      if (std::isfinite(size)) {
        parts.push_back({at.model, look == nullptr ? Appearance() : *look, box, size});
      }
    }
    for (const Feature& feature : solid->features) {
      if (!IsShown(feature) || pending.size() >= kMostOccurrencesSeen) continue;
      pending.push_back({feature.ComponentModel(),
                         PlacedWithin(ComponentPlacement(*at.model, feature), at.placement), look});
    }
  }
  return parts;
}

// Keeps the largest, in their order.
void KeepLargest(std::vector<SeenPart>& parts, std::size_t most) {
  if (parts.size() <= most) return;
  std::ranges::stable_sort(parts, std::greater(), &SeenPart::size);
  parts.resize(most);
}

SceneFace FaceOf(const SeenBox& box, std::size_t axis, bool upper) {
  const std::size_t u = (axis + 1) % 3;
  const std::size_t v = (axis + 2) % 3;
  SceneFace face;
  for (std::size_t i = 0; i < face.corners.size(); ++i) {
    const bool far_u = i == 1 || i == 2;
    const bool far_v = i >= 2;
    const std::size_t corner =
        (upper ? 1u << axis : 0u) | (far_u ? 1u << u : 0u) | (far_v ? 1u << v : 0u);
    face.corners[i] = {box.corners[corner][0], box.corners[corner][1]};
  }
  double lit = 0;
  for (std::size_t k = 0; k < 3; ++k) lit += (upper ? 1 : -1) * box.normals[axis][k] * kLight[k];
  face.light = kLeastLight + (1 - kLeastLight) * std::max(0.0, lit);
  return face;
}

SceneBox Drawn(const SeenPart& part) {
  constexpr double kSeenEdgeOn = 1e-9;
  SceneBox box{part.model->id.Text(), part.look.colour, part.look.transparency, {}};
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const double towards = part.box.normals[axis][2];
    if (std::abs(towards) > kSeenEdgeOn) box.faces.push_back(FaceOf(part.box, axis, towards > 0));
  }
  return box;
}

}  // namespace

Scene TakeScene(const Model& solid, std::size_t most) {
  Scene scene;
  std::vector<SeenPart> parts = PartsIn(solid);
  if (parts.empty()) return scene;
  scene.model = solid.id.Text();
  scene.left_out = parts.size() > most ? parts.size() - most : 0;
  KeepLargest(parts, most);
  std::vector<SeenBox> boxes;
  for (const SeenPart& part : parts) boxes.push_back(part.box);
  for (const std::size_t at : PaintersOrder(boxes)) scene.boxes.push_back(Drawn(parts[at]));
  return scene;
}

SceneFrame Around(const SceneFrame& a, const SceneFrame& b) {
  return {std::min(a[0], b[0]), std::min(a[1], b[1]), std::max(a[2], b[2]), std::max(a[3], b[3])};
}

SceneFrame FrameOf(const Scene& scene) {
  SceneFrame frame = {HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
  for (const SceneBox& box : scene.boxes) {
    for (const SceneFace& face : box.faces) {
      for (const auto& [x, y] : face.corners) frame = Around(frame, {x, y, x, y});
    }
  }
  return frame;
}

}  // namespace wb
