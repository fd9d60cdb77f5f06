// QmSingleDim: a single dimension, by a macro of the host that users can mend.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmSingleDim();

}  // namespace qm
