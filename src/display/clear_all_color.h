// QmClearAllColor: takes the colours of all models away again.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmClearAllColor();

}  // namespace qm
