// The opening of a command on the components of an assembly: they are collected and counted, and
// the user is told when there is nothing to work on.
#pragma once

#include <functional>
#include <optional>

#include "frame/models/component_list.h"

namespace qm {

// Fills the list with the components of one command.
using Collect = std::function<ProError(ProSolid root, ComponentList* components)>;
Collect ComponentsOf(ComponentKind kind);

struct Opening {
  ProMdl root = nullptr;
  ComponentList components;           // empty: there is nothing to work on, ...
  ProError status = PRO_TK_NO_ERROR;  // ... and this is the command's answer
  long long left_out = 0;             // what the command tells when it has done its work
};

// The components under `root`. When there are none the user reads `none`.
Opening OpenAssembly(ProMdl root, const Collect& collect, const wchar_t* none);

// Those of the current assembly. Without one there is nothing to work on, and nothing is said.
Opening OpenCurrentAssembly(const Collect& collect, const wchar_t* none);

// The two refusals, for commands that collect something else than a list: false, after the message,
// when `count` is nothing, since the array of components could not be allocated, or 0.
bool HasComponents(std::optional<int> count, const wchar_t* none);
void ShowNotCollected();

}  // namespace qm
