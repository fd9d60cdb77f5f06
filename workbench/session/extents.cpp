// Boxes around surfaces, through all levels of an assembly.
#include "workbench/session/extents.h"

#include <algorithm>

namespace wb {
namespace {

void Enclose(std::optional<Box>& extents, const Point& point) {
  if (!extents) extents = Box{point, point};
  for (size_t axis = 0; axis < 3; ++axis) {
    extents->min[axis] = std::min(extents->min[axis], point[axis]);
    extents->max[axis] = std::max(extents->max[axis], point[axis]);
  }
}

void EnclosePlaced(std::optional<Box>& extents, const Box& box, const Placement& placement) {
  for (unsigned corner = 0; corner < 8; ++corner) {
    Enclose(extents, PlacedAt(CornerOf(box, corner), placement));
  }
}

struct Occurrence {
  const Model* model;
  Placement placement;
};

}  // namespace

bool IsShown(const Feature& component) {
  return component.status == FeatureStatus::kActive && component.visible && !component.hidden &&
         component.ComponentModel() != nullptr;
}

std::optional<Box> OwnExtents(const SolidContent& solid) {
  std::optional<Box> around;
  for (const Surface& surface : solid.surfaces) {
    Enclose(around, surface.box.min);
    Enclose(around, surface.box.max);
  }
  return around;
}

Point PlacedAt(const Point& point, const Placement& placement) {
  Point placed{};
  for (size_t axis = 0; axis < 3; ++axis) {
    placed[axis] = placement[3][axis];
    for (size_t row = 0; row < 3; ++row) placed[axis] += point[row] * placement[row][axis];
  }
  return placed;
}

Point CornerOf(const Box& box, unsigned number) {
  Point corner;
  for (size_t axis = 0; axis < 3; ++axis) {
    corner[axis] = (number >> axis & 1) != 0 ? box.max[axis] : box.min[axis];
  }
  return corner;
}

Box BoxPlacedAt(const Box& box, const Placement& placement) {
  std::optional<Box> around;
  EnclosePlaced(around, box, placement);
  return *around;
}

Placement PlacedWithin(const Placement& inner, const Placement& outer) {
  Placement placement{};
  for (size_t row = 0; row < 4; ++row) {
    for (size_t column = 0; column < 4; ++column) {
      for (size_t k = 0; k < 4; ++k) placement[row][column] += inner[row][k] * outer[k][column];
    }
  }
  return placement;
}

Placement ComponentPlacement(const Model& assembly, const Feature& component) {
  Placement placement = component.component->placement;
  const Model* const model = component.ComponentModel();
  const double ratio = model == nullptr ? 1 : LengthRatio(*model, assembly);
  if (ratio == 1) return placement;
  for (size_t row = 0; row < 3; ++row) {
    for (size_t axis = 0; axis < 3; ++axis) placement[row][axis] *= ratio;
  }
  return placement;
}

std::optional<Box> ExtentsOf(const Model& solid) {
  std::optional<Box> extents;
  std::vector<Occurrence> pending = {{&solid, kIdentityPlacement}};
  while (!pending.empty()) {
    const Occurrence at = pending.back();
    pending.pop_back();
    const SolidContent* const content = at.model->As<SolidContent>();
    if (content == nullptr) continue;
    for (const Surface& surface : content->surfaces) {
      EnclosePlaced(extents, surface.box, at.placement);
    }
    for (const Feature& feature : content->features) {
      if (!IsShown(feature)) continue;
      pending.push_back({feature.ComponentModel(),
                         PlacedWithin(ComponentPlacement(*at.model, feature), at.placement)});
    }
  }
  return extents;
}

}  // namespace wb
