// The name of a model, and whether it is a skeleton, which bills and exports leave out.
#pragma once

#include <optional>
#include <string>

#include "toolkit/model.h"

namespace qm {

// Nothing, with a line in the run log, when the host does not tell.
std::optional<std::wstring> ModelName(ProMdl model);

// False, with a line in the run log, where the host does not tell: a model too many is seen, one
// too few is not.
bool IsSkeleton(ProMdl model);

}  // namespace qm
