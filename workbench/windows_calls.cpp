// The timers that the plug-in has set, fired on demand.
#include "workbench/windows_calls.h"

#include <algorithm>

#include "workbench/host.h"
#include "workbench/plugin_entry.h"
#include "workbench/windows_headers.h"

namespace wb {

void WindowsCalls::FireTimers() {
  const std::vector<Timer> due = timers;
  for (const Timer& timer : due) {
    const bool pending = std::any_of(timers.begin(), timers.end(),
                                     [&](const Timer& other) { return other.id == timer.id; });
    if (!pending) continue;
    const auto procedure = reinterpret_cast<TIMERPROC>(timer.procedure);
    EnterPluginAndSettle("timer",
                         [&] { procedure(nullptr, WM_TIMER, timer.id, ::GetTickCount()); });
  }
}

}  // namespace wb
