// QmVersion: a box with product version, build and the state of the host binding.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmVersion();

}  // namespace qm
