// Asks for the size of an array that it has freed.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProArray array = nullptr;
  ProArrayAlloc(0, 16, 1, &array);
  const ProArray kept = array;
  ProArrayFree(&array);
  int size = 0;
  return ProArraySizeGet(kept, &size);
}
