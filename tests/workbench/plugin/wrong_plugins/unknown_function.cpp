// Calls a host function that the host does not have.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

PRO_FUNCTION(ProError, ProTeapotBoil, int minutes);

int Wrong() {
  return ProTeapotBoil(3);
}
