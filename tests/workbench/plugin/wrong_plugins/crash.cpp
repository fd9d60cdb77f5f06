// Writes through a null pointer.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  volatile int* volatile nowhere = nullptr;
  ProMode mode;
  ProModeCurrentGet(&mode);
  *nowhere = 1;
  return 0;
}
