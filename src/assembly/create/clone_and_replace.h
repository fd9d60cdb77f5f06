// CloneAndReplace: a copy of the selected component under a new name takes its place.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError CloneAndReplace();

}  // namespace qm
