// The command QmMdlRename.
#pragma once

#include "toolkit/status.h"

namespace qm {

// Renames the current part, or one selected model, and its drawing.
ProError QmMdlRename();

}  // namespace qm
