// Facts about UTF-8 text that the host's limits need: names, message lines and input panels are
// counted in 16-bit wide characters, and files that are not UTF-8 are refused with their line.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace wb {

// True when every byte belongs to a well-formed UTF-8 sequence (no overlong forms, no surrogates).
bool IsUtf8(std::string_view text);

// Length of well-formed UTF-8 `text` in 16-bit wide characters; a character outside the basic
// plane counts two.
std::size_t WideLength(std::string_view text);

// `text` without a leading byte-order mark.
std::string_view WithoutBom(std::string_view text);

// All bytes of a file; none when it cannot be read.
std::optional<std::string> ReadFileBytes(const std::filesystem::path& path);

}  // namespace wb
