// Ends the process of the host.
#include <cstdlib>

#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  std::abort();
}
