// Uses a selection after freeing the array that owned it.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProSelection* selections = nullptr;
  ProSelbufferSelectionsGet(&selections);
  const ProSelection first = selections[0];
  ProSelectionarrayFree(selections);
  ProModelitem item;
  return ProSelectionModelitemGet(first, &item);
}
