// Destroys a dialog twice.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProUIDialogCreate("Small", "Small");
  ProUIDialogDestroy("Small");
  return ProUIDialogDestroy("Small");
}
