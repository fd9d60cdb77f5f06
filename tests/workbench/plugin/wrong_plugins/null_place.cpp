// Gives no place for the answer.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  return ProModeCurrentGet(nullptr);
}
