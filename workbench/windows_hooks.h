// What stands in for the intercepted Windows functions.
#pragma once

#include <span>

namespace wb {

struct Hook {
  const char* name;   // of the Windows function
  void* replacement;  // has its signature
};
std::span<const Hook> Hooks();

}  // namespace wb
