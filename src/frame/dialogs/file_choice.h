// The host's file picker for drawing templates and formats.
#pragma once

#include <optional>
#include <string>

namespace qm {

// Full path of the file that the user picks, perhaps with its version behind ("a3.frm.2"). Opens in
// the folder of the drawing formats, where the host's configuration names one. `filter` is like
// "*.drw". Nothing when the user cancels.
std::optional<std::wstring> PickDrawingFile(std::wstring title, std::wstring filter);

}  // namespace qm
