// Folders that exports write into.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qm {

// Has the user pick one, as FolderFromCurrent gives it. Nothing when the user cancels.
std::optional<std::wstring> AskFolder(std::wstring prompt);

// The folder with a separator behind; a relative one lies in the working directory. Nothing when
// the host does not tell that one.
std::optional<std::wstring> FolderFromCurrent(std::wstring_view folder);

// One that is there already is as good; why none can be made stands in the run log.
void CreateFolder(const std::wstring& path);

}  // namespace qm
