// Calls between plug-in and host, as statements name them and look for them.
#pragma once

#include <vector>

#include "workbench/checks/trace.h"

namespace wb {

class ScriptRun;
struct Statement;

// Calls of the last action in the order of their beginnings; a call's line is written when it ends.
// Throws ScriptError while the trace is off.
std::vector<Crossed> LinesInOrder(const ScriptRun& run);
// A name that no call bears would make "none" hold for ever; it ends the script.
void CheckFunctions(const Statement& statement);

}  // namespace wb
