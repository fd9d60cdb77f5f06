// Frees the array of the preselection, but not the selection in it.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProSelection* selections = nullptr;
  ProSelbufferSelectionsGet(&selections);
  return ProArrayFree(reinterpret_cast<ProArray*>(&selections));
}
