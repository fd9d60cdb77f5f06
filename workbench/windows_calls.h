// The Windows calls of the plug-in that reach the user or other programs: replaced in the loaded
// DLL's import table, recorded, and answered by the user of the workbench. The rest of Windows
// stays real.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "workbench/user.h"

namespace wb {

struct ShellCall {
  std::string function;  // "ShellExecuteW", "WinExec"
  std::string verb;
  std::string program;
  std::string parameters;
  int show = 0;
};

struct Timer {
  unsigned long long id = 0;
  unsigned milliseconds = 0;
  void* procedure = nullptr;  // TIMERPROC
};

struct WindowsCalls {
  std::vector<MessageBox> boxes;
  std::vector<ShellCall> shell;
  std::vector<Timer> timers;               // pending
  std::filesystem::path desktop_folder;    // what the desktop folder look-up answers
  std::filesystem::path local_app_folder;  // what the local application data look-up answers
  unsigned long long next_timer = 0x5000;

  // Calls the procedures of the timers that are pending now, as the message loop would.
  void FireTimers();
};

// Replaces the intercepted imports of a loaded module; lists the names replaced.
std::vector<std::string> InterceptImports(void* module);

}  // namespace wb
