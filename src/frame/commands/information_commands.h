// The commands that only show information.
#pragma once

#include "toolkit/types.h"

namespace qm {

// Dialog that says where to get help.
ProError QmQQGroup();

// Box with product version, build and the state of the host binding.
ProError QmVersion();

// Dialog that says what this toolbox is.
ProError AboutQm();

}  // namespace qm
