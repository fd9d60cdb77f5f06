// Gives the address of a variable of its own as a model.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  int variable = 0;
  ProMdlType type;
  return ProMdlTypeGet(&variable, &type);
}
