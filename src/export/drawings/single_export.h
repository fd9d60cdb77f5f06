// What the commands share that export the current drawing or model, to a folder that a setting
// chooses.
#pragma once

#include <optional>
#include <string>

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

// The path of one of `count` files: the path itself when it is the only one, or with "-1" behind.
std::wstring PathOfFile(const std::wstring& path, int number, int count);

}  // namespace qm
