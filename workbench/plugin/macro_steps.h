// Macros of the host: text parted into steps, and those carried out that are modelled.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "workbench/session/session.h"

namespace wb {

// "~ Select `dialog` `button` 1 `choice`;" is an action on named things.
struct MacroStep {
  std::string text;    // as it stands, for what is said of it
  std::string action;  // before the first name: "~ Select"
  std::vector<std::string> names;
  std::string count;  // before the third name: "1"
};
std::vector<MacroStep> ParseMacro(std::string_view macro);

// Carries a macro out in the session: clearing all appearances of the current model, of the models
// under it and of their surfaces, with the host's question. Stops at a step that is not modelled.
// Empty, or why it stopped.
std::string PlayMacro(std::string_view macro, Session& session);

}  // namespace wb
