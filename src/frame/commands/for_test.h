// ForTest: fetches the current model and does nothing else.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError ForTest();

}  // namespace qm
