// QmMerge: the preselected parts merged into a new part of the assembly.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmMerge();

}  // namespace qm
