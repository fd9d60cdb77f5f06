// The host's dialog that replaces the selected component, as a macro goes through it.
#pragma once

#include <string>
#include <string_view>

#include "workbench/session/session.h"

namespace wb {

// Whether a macro opens this dialog at all.
bool IsReplaceMacro(std::string_view macro);

struct PlayedReplacement {
  std::string unknown;  // a step that is not modelled; empty: none
  std::string refused;  // why the host stopped, in words of its own; empty: it went through
};

// Carries such a macro out, as the release of the running host knows it: the selected component
// gets the chosen model of the working directory in its place, without its constraints.
PlayedReplacement PlayReplaceMacro(std::string_view macro, Session& session);

}  // namespace wb
