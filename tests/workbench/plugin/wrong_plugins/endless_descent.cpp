// Calls itself until the stack has run out.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

namespace {
int Descend(volatile int* level) {
  volatile int next[1000] = {*level + 1};
  return next[0] < 0 ? 0 : Descend(next) + next[0];
}
}  // namespace

int Wrong() {
  volatile int level = 0;
  return Descend(&level);
}
