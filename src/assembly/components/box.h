// QmBox: the box around the preselected components, in the directions of the current assembly.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmBox();

}  // namespace qm
