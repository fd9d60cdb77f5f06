// What stands in for the intercepted Windows functions.
#pragma once

#include <span>

namespace wb {

struct Hook {
  const char* name;   // of the Windows function
  void* replacement;  // has its signature
  // Its calls are seen by traces, counts and faults.
  bool is_crossing = true;
};
std::span<const Hook> Hooks();

// Whether calls of this function can be met at all: the host offers it, or it is intercepted and
// its calls are seen.
bool IsMetFunction(const char* name);

// Replaces those imports of a loaded module (HMODULE) that are named in `hooks`.
struct Interception;
Interception InterceptImports(void* module, std::span<const Hook> hooks);

}  // namespace wb
