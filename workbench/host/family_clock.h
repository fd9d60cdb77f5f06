// The time that the host spends in functions of one family: not the plug-in's, though it calls
// them.
#pragma once

#include <chrono>

namespace wb {

struct FamilyClock {
  // What the names of the family begin with, such as "ProUITable"; null: nothing is clocked.
  const char* family = nullptr;
  std::chrono::duration<double> spent{0};
};

// The one that every crossing looks at.
FamilyClock& TheFamilyClock();

}  // namespace wb
