// The running program, and the install tree that a subcommand works on.
#pragma once

#include "workbench/base/command_line.h"

namespace wb {

std::filesystem::path ProgramFile();

// The install tree named by --install, or the one beside the program. Throws UsageError when it is
// not there.
std::filesystem::path InstallTree(const CommandLine& line);

}  // namespace wb
