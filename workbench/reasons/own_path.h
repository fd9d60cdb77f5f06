// Paths as the user's own machine writes them: where Windows programs run on another system, that
// system's paths.
#pragma once

#include <filesystem>
#include <string>

namespace wb {

// Relative paths stay.
std::string OwnPath(const std::filesystem::path& path);

// A text with the paths in it that begin with a drive, each up to a quote, ": ", ";", the end of
// its line or the next one: "notepad.exe C:\\a.ini". In quotes a separator may stand doubled.
std::string WithOwnPath(const std::string& text);

}  // namespace wb
