// BoxSel: preselects parts by box for the host's next command.
#pragma once

#include "toolkit/types.h"

namespace qm {

// A selection that was given up or failed answers PRO_TK_USER_ABORT.
ProError BoxSel();

}  // namespace qm
