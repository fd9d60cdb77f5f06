// `workbench bench`: how calls, time and memory of the plug-in's commands grow with the assembly.
#pragma once

#include <string>
#include <vector>

namespace wb {

// The subcommand with its arguments (UTF-8, without "bench"). Gives the exit code: 0, or 1 when a
// bound is missed under --strict. Throws UsageError, and std::runtime_error when a command of the
// plug-in misbehaves.
int BenchCommand(const std::vector<std::string>& args);

}  // namespace wb
