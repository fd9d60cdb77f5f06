// Frees an array twice.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProArray array = nullptr;
  ProArrayAlloc(0, 16, 1, &array);
  ProArray again = array;
  ProArrayFree(&array);
  return ProArrayFree(&again);
}
