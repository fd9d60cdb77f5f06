// Calls a function that is not there.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  int (*volatile nothing)() = nullptr;
  return nothing();
}
