// Lets an exception out of a command.
#include <stdexcept>

#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  throw std::runtime_error("no such thing");
}
