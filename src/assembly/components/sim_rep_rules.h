// What a simplified representation leaves out, and its name.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "frame/structure/component_tree.h"

namespace qm {

// A component by the ids down to the assembly that has it, and its own.
struct LeftOutComponent {
  std::vector<int> path;
  int id;
};

// Its ids from the top, as in "31/21/12".
std::string IdPathText(const LeftOutComponent& component);

// All that is neither kept, nor above or below anything that is: of each branch only its uppermost
// component, since what is below is left out with it.
std::vector<LeftOutComponent> ComponentsToLeaveOut(const ComponentTree& kept, const Levels& levels);

// QM_REP_1, or the next one that is not taken. Nothing when none of the first thousand is free: a
// host that takes every name for taken would be asked for ever.
std::optional<std::wstring> FreeRepName(
    const std::function<bool(const std::wstring& name)>& is_taken);

}  // namespace qm
