// Conversions between the 16-bit wide texts of the plug-in, the ANSI code page that a few calls of
// the host want, and the UTF-8 of the run log.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qm {

// Text in the system's ANSI code page; characters it lacks become its substitute.
std::string ToAnsi(std::wstring_view text);
// The same, but nothing when the code page lacks a character of the text.
std::optional<std::string> ToAnsiExactly(std::wstring_view text);
std::wstring FromAnsi(std::string_view text);
std::string ToUtf8(std::wstring_view text);

}  // namespace qm
