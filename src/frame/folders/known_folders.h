// Folders that commands write into.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qm {

// Nothing, after a failure in the run log, when nobody tells.

// The host's working directory, with a separator behind.
std::optional<std::wstring> CurrentFolder();
std::optional<std::wstring> DesktopFolder();

// The path of `name` in `folder`, which may end with a separator or not.
std::wstring PathIn(std::wstring_view folder, std::wstring_view name);

}  // namespace qm
