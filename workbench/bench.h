// `workbench bench`: how calls, time and memory of the plug-in's commands grow with the assembly.
#pragma once

#include <string>
#include <vector>

namespace wb {

// The command with its arguments (UTF-8, without "bench"). Gives the exit code: 0, 1 when a command
// misbehaves or, with --strict, when a bound is missed, 2 for a wrong command line.
int BenchCommand(const std::vector<std::string>& args);

}  // namespace wb
