// Looks for a command with a name of 32 characters.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  uiCmdCmdId command = nullptr;
  return ProCmdCmdIdFind("abcdefghijklmnopqrstuvwxyz012345", &command);
}
