// The subcommands of workbench.exe. Each takes its arguments in UTF-8, without its own name, and
// gives the exit code: 0, 1 when something failed, 2 for a command line that cannot be obeyed.
#pragma once

#include "workbench/base/command_line.h"

namespace wb {

int ImportCommand(const CommandArguments& arguments);
int RunScriptsCommand(const CommandArguments& arguments);
int MemoryCommand(const CommandArguments& arguments);
int ListCommandsCommand(const CommandArguments& arguments);

}  // namespace wb
