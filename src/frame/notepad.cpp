// Starts Notepad.
#include "frame/notepad.h"

#include <windows.h>

#include "frame/config.h"
#include "frame/text.h"

namespace qm {

void OpenInNotepad(const wchar_t* file) {
  ::WinExec(ToAnsi(L"notepad.exe " + ConfigPath(file)).c_str(), SW_SHOW);
}

}  // namespace qm
