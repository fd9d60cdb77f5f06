// Threads that the plug-in starts are real; what becomes of them is kept until control is back.
#include <algorithm>

#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

HANDLE WINAPI HookCreateThread(LPSECURITY_ATTRIBUTES security, SIZE_T stack,
                               LPTHREAD_START_ROUTINE start, LPVOID data, DWORD flags, LPDWORD id) {
  return WindowsCrossing("CreateThread", "", static_cast<HANDLE>(nullptr), [&](const Call& call) {
    const HANDLE thread = ::CreateThread(security, stack, start, data, flags, id);
    if (thread != nullptr) call.host.windows.threads.push_back({thread});
    return thread;
  });
}

// The plug-in's thread behind a handle that it uses; null for handles of other things.
PluginThread* ThreadOf(HANDLE handle) {
  if (!HasHost() || !TheHost().OnUiThread()) return nullptr;
  auto& threads = TheHost().windows.threads;
  const auto found = std::ranges::find_if(threads, [&](const PluginThread& thread) {
    return thread.handle == handle && !thread.is_closed;
  });
  return found == threads.end() ? nullptr : &*found;
}

DWORD WINAPI HookWaitForSingleObject(HANDLE handle, DWORD milliseconds) {
  const DWORD result = ::WaitForSingleObject(handle, milliseconds);
  PluginThread* const thread = ThreadOf(handle);
  if (thread != nullptr && result == WAIT_OBJECT_0) thread->waited_for = true;
  return result;
}

BOOL WINAPI HookCloseHandle(HANDLE handle) {
  if (PluginThread* const thread = ThreadOf(handle)) thread->is_closed = true;
  return ::CloseHandle(handle);
}

}  // namespace

HookRows ThreadHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(CreateThread)>("CreateThread", &HookCreateThread),
      HookRow<decltype(WaitForSingleObject)>("WaitForSingleObject", &HookWaitForSingleObject,
                                             false),
      HookRow<decltype(CloseHandle)>("CloseHandle", &HookCloseHandle, false),
  };
  return kRows;
}

}  // namespace wb
