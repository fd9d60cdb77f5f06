// Arguments that several statements share.
#pragma once

#include "workbench/language/script_parser.h"
#include "workbench/session/model.h"

namespace wb {

// The value of a parameter statement: real, integer, yes_no or string.
ParameterValue ParameterArgument(const Statement& statement);

}  // namespace wb
