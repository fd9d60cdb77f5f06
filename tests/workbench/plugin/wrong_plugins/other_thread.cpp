// Calls the host from a thread of its own.
#include <windows.h>

#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

namespace {
DWORD WINAPI Ask(void*) {
  ProMode mode;
  return static_cast<DWORD>(ProModeCurrentGet(&mode));
}
}  // namespace

int Wrong() {
  const HANDLE thread = ::CreateThread(nullptr, 0, &Ask, nullptr, 0, nullptr);
  ::WaitForSingleObject(thread, INFINITE);
  ::CloseHandle(thread);
  return 0;
}
