// The command QmRename.
#pragma once

#include "toolkit/status.h"

namespace qm {

// Renames many models and their drawings by a list, which a workbook can fill.
ProError QmRename();

}  // namespace qm
