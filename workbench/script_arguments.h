// Arguments that several statements share.
#pragma once

#include "workbench/model.h"
#include "workbench/script_parser.h"

namespace wb {

// The value of a parameter statement: real, integer, yes_no or string.
ParameterValue ParameterArgument(const Statement& statement);

}  // namespace wb
