// Commands that are registered, placed and guarded like all others but do nothing yet. The list
// shrinks to nothing as they are built; the command table is checked against it at compile time.
#pragma once

#include <array>
#include <string_view>

#include "toolkit/types.h"

namespace qm {

inline constexpr std::array<std::string_view, 0> kNotInBuild = {};

// Says in a caption box that the command is not in this build.
ProError NotInBuild();

}  // namespace qm
