// Allocates an array and forgets it.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProArray array = nullptr;
  return ProArrayAlloc(0, 16, 1, &array);
}
