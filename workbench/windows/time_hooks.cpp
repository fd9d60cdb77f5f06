// Timers wait until they are fired, pauses take no time, and the clock always begins alike.
#include <algorithm>
#include <ctime>

#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

auto TimerWithId(std::vector<Timer>& timers, UINT_PTR id) {
  return std::find_if(timers.begin(), timers.end(),
                      [&](const Timer& timer) { return timer.id == id; });
}

UINT_PTR WINAPI HookSetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
  return WindowsCrossing(
      "SetTimer", std::to_string(milliseconds), UINT_PTR{0}, [&](const Call& call) {
        if (window != nullptr) throw NotModelled{"a timer that belongs to a window"};
        if (procedure == nullptr) call.Fail("null timer procedure without a window");
        WindowsCalls& windows = call.host.windows;
        const auto same = TimerWithId(windows.timers, id);
        const UINT_PTR given = same == windows.timers.end() ? windows.next_timer++ : id;
        if (same != windows.timers.end()) windows.timers.erase(same);
        windows.timers.push_back({given, milliseconds, reinterpret_cast<void*>(procedure), false});
        return given;
      });
}

BOOL WINAPI HookKillTimer(HWND, UINT_PTR id) {
  bool reached = false;
  const BOOL killed =
      WindowsCrossing("KillTimer", std::to_string(id), BOOL{FALSE}, [&](const Call& call) {
        reached = true;
        std::vector<Timer>& timers = call.host.windows.timers;
        const auto timer = TimerWithId(timers, id);
        if (timer == timers.end()) call.Fail("there is no timer " + std::to_string(id));
        timers.erase(timer);
        return BOOL{TRUE};
      });
  std::vector<Timer>& timers = TheHost().windows.timers;
  const auto timer = TimerWithId(timers, id);
  if (!reached && timer != timers.end()) timer->kill_failed = true;
  return killed;
}

// A pause on the user-interface thread only moves the time on that the plug-in is told.
void WINAPI HookSleep(DWORD milliseconds) {
  if (!HasHost() || !TheHost().OnUiThread()) return ::Sleep(milliseconds);
  WindowsCalls& windows = TheHost().windows;
  windows.slept_ms += milliseconds;
  if (windows.in_pause) windows.in_pause();
}

ULONGLONG WINAPI HookGetTickCount64() {
  const bool slept = HasHost() && TheHost().OnUiThread();
  return ::GetTickCount64() + (slept ? TheHost().windows.slept_ms : 0);
}

// What a command draws at random begins with the time: two runs draw the same.
__time64_t HookTime64(__time64_t* place) {
  constexpr __time64_t kStart = 1'600'000'000;  // some second of 2020
  if (!HasHost() || !TheHost().OnUiThread()) return ::_time64(place);
  const auto now = kStart + static_cast<__time64_t>(TheHost().windows.slept_ms / 1000);
  if (place != nullptr) *place = now;
  return now;
}

}  // namespace

HookRows TimeHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(SetTimer)>("SetTimer", &HookSetTimer),
      HookRow<decltype(KillTimer)>("KillTimer", &HookKillTimer),
      HookRow<decltype(Sleep)>("Sleep", &HookSleep, false),
      HookRow<decltype(GetTickCount64)>("GetTickCount64", &HookGetTickCount64, false),
      HookRow<decltype(_time64)>("_time64", &HookTime64, false),
  };
  return kRows;
}

}  // namespace wb
