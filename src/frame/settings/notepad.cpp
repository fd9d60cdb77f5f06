// Starts Notepad.
#include "frame/settings/notepad.h"

#include <windows.h>

#include "frame/settings/config.h"
#include "frame/text/text.h"

namespace qm {

void OpenInNotepad(const wchar_t* file) {
  ::WinExec(ToAnsi(L"notepad.exe " + ConfigPath(file)).c_str(), SW_SHOW);
}

}  // namespace qm
