// QmNewDrw: a drawing of the model from the user's own template for a size of sheet.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmNewDrw();

}  // namespace qm
