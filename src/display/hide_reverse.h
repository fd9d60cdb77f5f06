// QmHideReverse: swaps shown and hidden parts of the current assembly.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmHideReverse();

}  // namespace qm
