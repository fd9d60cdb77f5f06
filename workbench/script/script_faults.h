// Faults as a script and as the command line order them: one reader, one check.
#pragma once

#include <string>

#include "workbench/checks/faults.h"
#include "workbench/language/script_parser.h"

namespace wb {

// What a `fault` statement orders. Throws ScriptError for a function that no call can bear.
FaultPlan FaultOf(const Statement& statement);

// The same from "FUNCTION:NTH:STATUS[:from_then_on]"; nothing is ordered by "". Throws UsageError.
FaultPlan FaultOption(const std::string& text);

}  // namespace wb
