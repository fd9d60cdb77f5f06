// SetUnit: the dialog that makes a unit system the principal one of a model and of its components.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError SetUnit();

}  // namespace qm
