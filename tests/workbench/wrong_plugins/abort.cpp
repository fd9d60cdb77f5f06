// Ends the process of the host.
#include <cstdlib>

#include "tests/workbench/wrong_plugins/wrong_plugin.h"

int Wrong() {
  std::abort();
}
