// Components of an assembly by their ids on the way down from the top, apart from any host.
#pragma once

#include <map>
#include <span>
#include <vector>

namespace qm {

// Some of the components: each with the assemblies above it, and all below it.
struct ComponentTree {
  bool is_whole = false;  // this component, with all below it
  std::map<int, ComponentTree> below;

  // The component at the end of the path; the top itself for an empty one.
  void Add(std::span<const int> path) {
    ComponentTree* at = this;
    for (const int id : path) at = &at->below[id];
    at->is_whole = true;
  }
};

// The assemblies of a structure by number, 0 the top one, and what each has: an assembly that is
// placed several times stands there once.
inline constexpr int kNoLevel = -1;
struct LevelComponent {
  int id;
  int level;  // of an assembly; kNoLevel for parts and for what is not in session
};
using Levels = std::vector<std::vector<LevelComponent>>;

}  // namespace qm
