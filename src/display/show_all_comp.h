// QmShowAllComp: unhides every component of the current assembly.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmShowAllComp();

}  // namespace qm
