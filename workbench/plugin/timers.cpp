// The timers that the plug-in has set, fired on demand.
#include "workbench/plugin/timers.h"

#include <algorithm>

#include "workbench/base/windows_headers.h"
#include "workbench/host/host.h"
#include "workbench/plugin/plugin_entry.h"

namespace wb {

void FireTimers() {
  const std::vector<Timer>& timers = TheHost().windows.timers;
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
