// Paths as the user's own machine writes them: where Windows programs run on another system, that
// system's paths.
#pragma once

#include <filesystem>
#include <string>

namespace wb {

// Relative paths stay.
std::string OwnPath(const std::filesystem::path& path);

// A text with its path from a drive letter to the end, "notepad.exe C:\\a.ini", if it has one.
std::string WithOwnPath(const std::string& text);

}  // namespace wb
