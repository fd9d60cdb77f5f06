// Mouse input made by the plug-in goes nowhere but to dialogs of the host that it is made for.
#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

// From whichever thread: this is what threads of the plug-in are for.
void WINAPI HookMouseEvent(DWORD flags, DWORD dx, DWORD dy, DWORD data, ULONG_PTR) {
  const MouseEvent event{static_cast<unsigned>(flags), static_cast<unsigned>(dx),
                         static_cast<unsigned>(dy), static_cast<unsigned>(data)};
  if (!TheHost().OnUiThread()) return TheHost().windows.input.Add(event);
  WindowsCrossing("mouse_event", std::to_string(flags), 0, [&](const Call& call) {
    call.host.windows.input.Add(event);
    call.host.TakeInput();
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
