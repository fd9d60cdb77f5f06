// Component paths such as "pump/rotor/bolt#2", and what a script picks by them.
#pragma once

#include <string>
#include <vector>

#include "workbench/language/script_parser.h"
#include "workbench/session/session.h"

namespace wb {

class ScriptRun;

// A component feature, reached from a root assembly.
struct ComponentSpot {
  Model* owner = nullptr;
  Feature* feature = nullptr;
  std::vector<int> ids;  // from the root down to the feature
};

// Steps are names of components below `root`, "#2" behind a name takes the second of that name, and
// "@12" the component with feature id 12. The last step's model may be missing. Throws ScriptError
// that names the step at fault.
ComponentSpot FindComponentSpot(Model& root, const std::string& path);

// The picks that a `select` or `pick` statement names; "." is the root itself.
std::vector<PickedItem> PicksOf(ScriptRun& run, const Statement& statement);

// "pump/bolt#2", the way back from a pick.
std::string DescribePick(const PickedItem& pick);

}  // namespace wb
