// Leaves a timer pending when the plug-in stops.
#include <windows.h>

#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  return ::SetTimer(nullptr, 0, 1000, [](HWND, UINT, UINT_PTR, DWORD) {}) == 0;
}
