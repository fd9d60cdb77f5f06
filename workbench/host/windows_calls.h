// The Windows calls of the plug-in that reach the user or other programs: replaced in the loaded
// DLL's import table, recorded, and answered by the user of the workbench. The rest of Windows
// stays real.
#pragma once

#include <filesystem>
#include <functional>
#include <mutex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "workbench/host/events.h"

namespace wb {

struct Timer {
  unsigned long long id = 0;
  unsigned milliseconds = 0;
  void* procedure = nullptr;  // TIMERPROC
  bool kill_failed = false;   // by a fault: that it is pending is not held against the plug-in
};

// A thread that the plug-in has started: before control is back it has to be waited for, and its
// handle closed.
struct PluginThread {
  void* handle = nullptr;
  bool waited_for = false;
  bool is_closed = false;
};

// Input that the plug-in has made itself: what waits for the next dialog of the host. Threads of
// the plug-in may queue it, and nothing else.
class QueuedInput {
 public:
  void Add(const MouseEvent& event) {
    const std::lock_guard lock(mutex_);
    waiting_.push_back(event);
  }
  std::vector<MouseEvent> Take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(waiting_, {});
  }

 private:
  std::mutex mutex_;
  std::vector<MouseEvent> waiting_;
};

struct WindowsCalls {
  std::vector<Timer> timers;               // pending
  unsigned long dialog_error = 0;          // how the latest of them failed; 0: it did not
  unsigned long long slept_ms = 0;         // the plug-in's pauses, which take no time here
  std::function<void()> in_pause;          // what goes on elsewhere in each of them
  std::filesystem::path desktop_folder;    // what the desktop folder look-up answers
  std::filesystem::path local_app_folder;  // what the local application data look-up answers
  std::set<void*> log_files;               // handles of the plug-in's run log
  std::set<std::string> withheld;          // host functions that this host does not offer
  unsigned long long next_timer = 0x5000;
  std::vector<PluginThread> threads;  // started since control was given to the plug-in
  QueuedInput input;
  int middle_clicks = 0;  // queued, and not taken by a dialog yet
};

struct Interception {
  std::vector<std::string> replaced;
  std::vector<std::string> left;  // imports by name that stay Windows'
  // Imports by number instead of by name, which cannot be intercepted: "USER32.dll#12".
  std::vector<std::string> by_ordinal;
};

// Replaces the intercepted imports of a loaded module (HMODULE). Doing it again changes nothing.
Interception InterceptImports(void* module);

}  // namespace wb
