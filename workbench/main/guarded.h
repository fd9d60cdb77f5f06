// What the workbench's programs have in common: a command's exit code, and its complaint.
#pragma once

#include "workbench/base/command_line.h"

namespace wb {

// Runs a command and says on the error channel why it could not: 1 for a failure, 2 for a command
// line that cannot be obeyed.
int RunGuarded(int (*command)(const CommandArguments& arguments),
               const CommandArguments& arguments);

}  // namespace wb
