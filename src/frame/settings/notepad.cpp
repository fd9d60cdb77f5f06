// Starts Notepad.
#include "frame/settings/notepad.h"

#include <windows.h>

#include "frame/messages/run_log.h"
#include "frame/settings/config.h"
#include "frame/settings/config_rules.h"
#include "frame/text/text.h"

namespace qm {

void OpenInNotepad(const wchar_t* file) {
  constexpr UINT kLastFailure = 31;
  const std::wstring path = ConfigPath(file);
  if (LeadsNowhere(path)) return LogFailure("nobody knows where the settings file lies");
  const auto command = ToAnsiExactly(L"notepad.exe " + path);
  if (!command) return LogFailure("the code page lacks characters of " + ToUtf8(path));
  const UINT answer = ::WinExec(command->c_str(), SW_SHOW);
  if (answer > kLastFailure) return;
  LogFailure("notepad was not started, Windows answered " + std::to_string(answer));
}

}  // namespace qm
