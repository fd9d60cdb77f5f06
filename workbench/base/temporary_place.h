// The folder for temporary files, and whether it leaves room for what the workbench puts there.
#pragma once

#include <filesystem>
#include <string>

namespace wb {

// The longest name of a folder in which the workbench may make its own, in 16-bit characters.
inline constexpr size_t kLongestPlace = 159;

// TEMP. Throws std::runtime_error with the way out when it is not there or too long.
std::filesystem::path TemporaryPlace();

// Throws std::runtime_error when `place`, which the user gave as `name`, is too long.
void RefuseLongPlace(const std::filesystem::path& place, const std::string& name);

}  // namespace wb
