// QmBoxSelSur: preselects surfaces by box for the host's next command.
#pragma once

#include "toolkit/types.h"

namespace qm {

// A selection that was given up or failed answers the selection's own status.
ProError QmBoxSelSur();

}  // namespace qm
