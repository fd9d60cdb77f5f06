// Takes pictures of assemblies.
#include "workbench/scene/scene.h"

#include <algorithm>
#include <cmath>

#include "workbench/scene/box_count.h"
#include "workbench/scene/painters_order.h"
#include "workbench/session/extents.h"

namespace wb {
namespace {

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
  for (const Point& corner : box) {
    for (std::size_t axis = 0; axis < 2; ++axis) {
      low[axis] = std::min(low[axis], corner[axis]);
      high[axis] = std::max(high[axis], corner[axis]);
    }
  }
  return std::hypot(high[0] - low[0], high[1] - low[1]);
}

struct SeenParts {
  std::vector<SeenPart> parts;
  bool are_all = true;
};

SeenParts PartsIn(const Model& top) {
  SeenParts seen;
  std::vector<PlacedModel> pending = {{&top, kViewFromCorner}};
  for (std::size_t met = 0; !pending.empty() && met < kMostOccurrencesMet; ++met) {
    const PlacedModel at = pending.back();
    pending.pop_back();
    const SolidContent* const solid = at.model->As<SolidContent>();
    if (solid == nullptr) continue;
    const Appearance* const look = LookOf(*solid, at.look);
    if (const auto extents = OwnExtents(*solid)) {
      const SeenBox box = SeenFrom(*extents, at.placement);
      const double size = SizeOf(box);
      if (std::isfinite(size)) {
        seen.parts.push_back({at.model, look == nullptr ? Appearance() : *look, box, size});
      }
    }
    for (const Feature& feature : solid->features) {
      if (!IsShown(feature)) continue;
      if (pending.size() >= kMostOccurrencesMet) {
        seen.are_all = false;
        break;
      }
      pending.push_back({feature.ComponentModel(),
                         PlacedWithin(ComponentPlacement(*at.model, feature), at.placement), look});
    }
  }
  seen.are_all = seen.are_all && pending.empty();
  return seen;
}

// Keeps the largest, in their order.
void KeepLargest(std::vector<SeenPart>& parts, std::size_t most) {
  if (parts.size() <= most) return;
  std::ranges::stable_sort(parts, std::greater(), &SeenPart::size);
  parts.resize(most);
}

SceneFace Drawn(const SeenFace& seen) {
  SceneFace face;
  face.box = seen.box;
  for (const auto& [at, is_edge] : seen.corners) face.corners.push_back({{at[0], at[1]}, is_edge});
  double lit = 0;
  for (std::size_t k = 0; k < 3; ++k) lit += seen.normal[k] * kLight[k];
  face.light = kLeastLight + (1 - kLeastLight) * std::max(0.0, lit);
  return face;
}

std::vector<SeenFace> FacesOf(const std::vector<SeenPart>& parts) {
  std::vector<SeenFace> faces;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    for (SeenFace& face : FacesTowardsViewer(parts[i].box)) {
      face.box = i;
      face.is_opaque = parts[i].look.transparency <= 0;
      faces.push_back(std::move(face));
    }
  }
  return faces;
}

}  // namespace

Scene TakeScene(const Model& solid, std::size_t most) {
  Scene scene;
  auto [parts, are_all] = PartsIn(solid);
  if (parts.empty()) return scene;
  scene.model = solid.id.Text();
  scene.are_all_met = are_all;
  const std::size_t count = are_all ? parts.size() : CountBoxes(solid);
  KeepLargest(parts, most);
  scene.left_out = count > parts.size() ? count - parts.size() : 0;
  for (const SeenPart& part : parts) {
    scene.boxes.push_back({part.model->id.Text(), part.look.colour, part.look.transparency});
  }
  for (const SeenFace& face : PaintersOrder(FacesOf(parts))) scene.faces.push_back(Drawn(face));
  return scene;
}

SceneFrame Around(const SceneFrame& a, const SceneFrame& b) {
  return {std::min(a[0], b[0]), std::min(a[1], b[1]), std::max(a[2], b[2]), std::max(a[3], b[3])};
}

SceneFrame FrameOf(const Scene& scene) {
  SceneFrame frame = {HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
  for (const SceneFace& face : scene.faces) {
    for (const auto& [at, is_edge] : face.corners) {
      frame = Around(frame, {at[0], at[1], at[0], at[1]});
    }
  }
  return frame;
}

}  // namespace wb
