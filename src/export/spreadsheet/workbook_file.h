// The file that a workbook is written to or read from: chosen by the user, free to be written,
// opened at the end.
#pragma once

#include <optional>
#include <string>

namespace qm {

// The path that the user chooses in a save dialog that begins on the desktop, or in an open dialog
// for a table of new names; nothing when the user cancels. The process's working directory stays.
std::optional<std::wstring> ChooseWorkbookToWrite();
std::optional<std::wstring> ChooseWorkbookToRead();

// Whether the file, where there is one, can be replaced: no program holds it open, and it is not
// protected. Nothing is changed. False after a message.
bool IsFreeToWrite(const std::wstring& path);

// For a file of which that shows only later: Windows' errors that say so, and the message.
bool IsHeldOpen(unsigned long error);
void ShowHeldOpen(const std::wstring& path);

// Shows the file in the program that the user has for it.
void OpenWorkbookFile(const std::wstring& path);

}  // namespace qm
