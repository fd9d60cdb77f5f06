// Shows a dialog that nobody works.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  int answer = 0;
  ProUIDialogCreate("Small", "Small");
  ProUIDialogActivate("Small", &answer);
  return ProUIDialogDestroy("Small");
}
