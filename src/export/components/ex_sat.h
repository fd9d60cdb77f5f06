// QmExSat: every component of the current assembly as a SAT file.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmExSat();

}  // namespace qm
