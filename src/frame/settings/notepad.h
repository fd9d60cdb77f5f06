// Opens a settings file for the user, who edits it in Notepad.
#pragma once

namespace qm {

// `file` is a file of the folder "QMconfig". Nothing waits for Notepad to close.
void OpenInNotepad(const wchar_t* file);

}  // namespace qm
