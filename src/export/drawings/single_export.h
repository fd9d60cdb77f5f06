// What the commands share that export the current drawing or model, to a folder that a setting
// chooses.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "toolkit/model.h"

namespace qm {

// Null: there is none.
ProMdl ModelToExport();

// Whether the user is asked for the folder where the setting says neither the desktop nor to ask.
enum class OtherSetting { kEndsCommand, kAsks };

// By the section of the settings: the desktop, or the folder that the user picks. Nothing when the
// user cancels, or where the setting ends the command.
std::optional<std::wstring> ExportFolder(const wchar_t* section, std::wstring prompt,
                                         OtherSetting other);

// The files of a drawing, as many as it has sheets.
struct SheetFiles {
  std::vector<std::wstring> paths;  // without extension; with "-1" behind when there are several
  const char* trouble = nullptr;    // why the paths are not known whole; null: they are
};
SheetFiles FilesOfSheets(ProMdl drawing, const std::wstring& folder);

}  // namespace qm
