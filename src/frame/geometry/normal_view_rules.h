// The axis-aligned orientation that is meant by a view that is nearly one.
#pragma once

#include <optional>

#include "frame/geometry/matrix_rules.h"

namespace qm {

// The view at unit scale with every axis of the model along an axis of the screen, and its shift
// divided by its former scale. Each row of the matrix takes the axis of its largest component; of
// two rows that want the same axis, the one with less of it takes the axis that is left. Nothing
// for a view that has no scale.
std::optional<Matrix> NormalView(const Matrix& view);

}  // namespace qm
