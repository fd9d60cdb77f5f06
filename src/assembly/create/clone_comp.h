// CloneComp: a copy of the selected component under a new name, put into the assembly and placed by
// the user.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError CloneComp();

}  // namespace qm
