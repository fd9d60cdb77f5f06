// Skeleton models, which bills and exports leave out.
#pragma once

#include "toolkit/model.h"

namespace qm {

// False, with a line in the run log, where the host does not tell: a model too many is seen, one
// too few is not.
bool IsSkeleton(ProMdl model);

}  // namespace qm
