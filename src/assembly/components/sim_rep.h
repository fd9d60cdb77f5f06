// QmSimRep: a simplified representation of the current assembly that shows the preselected
// components alone.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmSimRep();

}  // namespace qm
