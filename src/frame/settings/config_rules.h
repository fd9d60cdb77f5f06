// Text rules of the settings files.
#pragma once

#include <string>
#include <string_view>

namespace qm {

// `module_path` with its file name replaced by "QMconfig\" and `file`. When the path does not end
// in `module_name` (compared without case), a path in a folder that cannot exist, so that nothing
// is read from or written to another program's files.
std::wstring ConfigPathBeside(std::wstring_view module_path, std::wstring_view module_name,
                              std::wstring_view file);

// Whether a path is one in that folder.
bool LeadsNowhere(std::wstring_view path);

// The same without a folder of ours between: `name` is a file or folder beside the plug-in.
std::wstring PathBeside(std::wstring_view module_path, std::wstring_view module_name,
                        std::wstring_view name);

// `folder`, with or without a closing separator, followed by "\QMconfig\" and `file`.
std::wstring ConfigPathIn(std::wstring_view folder, std::wstring_view file);

}  // namespace qm
