// NewDraw: a drawing of the model with a drawing format of the user's choice.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError NewDraw();

}  // namespace qm
