// How many boxes a picture of a whole assembly would have.
#pragma once

#include <cstddef>

#include "workbench/session/model.h"

namespace wb {

// Shown solids with surfaces at all levels, `top` among them, as often as they are placed. Each
// model is walked once however often that is, since the number may be astronomic.
std::size_t CountBoxes(const Model& top);

}  // namespace wb
