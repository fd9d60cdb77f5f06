// Creates a dialog and forgets it.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  return ProUIDialogCreate("Small", "Small");
}
