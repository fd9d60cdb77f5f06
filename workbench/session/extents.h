// How much room a part or an assembly takes.
#pragma once

#include <optional>

#include "workbench/session/model.h"

namespace wb {

// Whether a component is to be seen: active, visible, not hidden, and its model in session.
bool IsShown(const Feature& component);

// The box around the solid's own surfaces.
std::optional<Box> OwnExtents(const SolidContent& solid);

// Where `placement` puts a point.
Point PlacedAt(const Point& point, const Placement& placement);

// The corner of a box by a number from 0 to 7, whose bits choose the further end of each axis.
Point CornerOf(const Box& box, unsigned number);

// The box around a box that is turned.
Box BoxPlacedAt(const Box& box, const Placement& placement);

// A component's placement seen from the assembly above its own one: `inner` within `outer`.
Placement PlacedWithin(const Placement& inner, const Placement& outer);

// Where a component lies in its assembly, its lengths taken in the assembly's units.
Placement ComponentPlacement(const Model& assembly, const Feature& component);

// The box around all surfaces of the model and of its shown components, in the model's own frame.
// None for a model without any.
std::optional<Box> ExtentsOf(const Model& solid);

}  // namespace wb
