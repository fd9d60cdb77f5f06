// Faults as the command line orders them: read and refused as the statement is.
#pragma once

#include <string>

#include "workbench/checks/faults.h"

namespace wb {

// What "FUNCTION:NTH:STATUS[:from_then_on]" orders; nothing is ordered by "". Throws UsageError.
FaultPlan FaultOption(const std::string& text);

}  // namespace wb
