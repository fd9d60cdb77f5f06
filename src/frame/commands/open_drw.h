// QmOpenDrw: opens the drawing that has the preselected model's name. Only the popup menu offers
// it.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmOpenDrw();

}  // namespace qm
