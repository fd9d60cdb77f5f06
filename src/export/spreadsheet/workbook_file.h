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

enum class OldFile { kDelete, kKeep };

// Deletes an old file if asked to, then checks that no program holds one open. False after a
// message.
bool IsFreeToWrite(const std::wstring& path, OldFile old_file);

// Shows the file in the program that the user has for it.
void OpenWorkbookFile(const std::wstring& path);

}  // namespace qm
