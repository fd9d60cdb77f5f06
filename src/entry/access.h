// Access functions for the host: a command that does not apply is greyed, never hidden.
#pragma once

#include "entry/access_rules.h"
#include "toolkit/command.h"

namespace qm {

// Available or unavailable in the current mode; unavailable when the host does not tell the mode.
// Always asks nothing.
uiCmdAccessState AccessNow(AccessRule rule);

// The function to register with a command.
uiCmdAccessFn AccessFunction(AccessRule rule);

}  // namespace qm
