// The host's file pickers: for drawing templates and formats, and for files to be written.
#pragma once

#include <optional>
#include <string>

namespace qm {

// The folder of the drawing formats in the host's configuration; empty when it names none.
std::wstring FormatFolder();

// Full path of the file that the user picks, perhaps with its version behind ("a3.frm.2"). Opens in
// `folder`, unless that is empty. `filter` is like "*.drw". Nothing when the user cancels.
std::optional<std::wstring> PickDrawingFile(std::wstring title, std::wstring filter,
                                            std::wstring folder = FormatFolder());

// Full path of a file to be written, which need not exist; with the extension of `filter` ("*.xls")
// where the user has typed none. `name` is offered. Nothing when the user cancels.
std::optional<std::wstring> PickFileToWrite(std::wstring title, std::wstring filter,
                                            std::wstring name);

}  // namespace qm
