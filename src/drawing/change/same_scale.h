// SameScale: one scale for the sheet and for the views of the current drawing.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError SameScale();

}  // namespace qm
