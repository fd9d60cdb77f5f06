// How many boxes a picture of a whole assembly would have.
#pragma once

#include <cstddef>

#include "workbench/session/model.h"

namespace wb {

// Shown solids with surfaces at all levels, `top` among them. Each model is counted once however
// often it is placed, since the number of occurrences may be astronomic.
std::size_t CountBoxes(const Model& top);

}  // namespace wb
