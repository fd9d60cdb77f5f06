// Preselect parts or surfaces by box for the host's next command.
#pragma once

#include "toolkit/types.h"

namespace qm {

// Parts. A selection that was given up answers PRO_TK_USER_ABORT.
ProError BoxSel();

// Surfaces. A selection that was given up answers the selection's own status.
ProError QmBoxSelSur();

}  // namespace qm
