// Mouse input made by the plug-in goes nowhere.
#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

void WINAPI HookMouseEvent(DWORD flags, DWORD dx, DWORD dy, DWORD data, ULONG_PTR) {
  WindowsCrossing("mouse_event", std::to_string(flags), 0, [&](const Call& call) {
    call.host.events.Add(MouseEvent{static_cast<unsigned>(flags), static_cast<unsigned>(dx),
                                    static_cast<unsigned>(dy), static_cast<unsigned>(data)});
    return 0;
  });
}

}  // namespace

HookRows MouseHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(mouse_event)>("mouse_event", &HookMouseEvent),
  };
  return kRows;
}

}  // namespace wb
