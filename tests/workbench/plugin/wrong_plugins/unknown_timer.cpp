// Stops a timer that was never set.
#include <windows.h>

#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  return ::KillTimer(nullptr, 4711);
}
