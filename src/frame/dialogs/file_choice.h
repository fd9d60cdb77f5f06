// The host's file picker for drawing templates and formats.
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

}  // namespace qm
