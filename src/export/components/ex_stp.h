// QmExStp: every component of the current assembly as a STEP file.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmExStp();

}  // namespace qm
