// One thread for one click.
#include "assembly/components/remove_cons_click.h"

#include <windows.h>

#include "frame/messages/run_log.h"

namespace qm {
namespace {

DWORD WINAPI Click(void*) noexcept {
  // Down and up in one event.
  ::mouse_event(MOUSEEVENTF_MIDDLEDOWN | MOUSEEVENTF_MIDDLEUP, 0, 0, 0, 0);
  return 0;
}

}  // namespace

bool QueueMiddleClick() {
  const HANDLE thread = ::CreateThread(nullptr, 0, &Click, nullptr, 0, nullptr);
  if (thread == nullptr) {
    LogFailure("no thread for the click that confirms a placement: the user has to confirm it");
    return false;
  }
  ::WaitForSingleObject(thread, INFINITE);
  ::CloseHandle(thread);
  return true;
}

}  // namespace qm
