// Text of the workbench: UTF-8 inside, 16-bit wide at the host interface, names without case.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace wb {

// The case rule of model, parameter and file names: letters of any script that are each other's
// capital and small letter are one.
std::string FoldCase(std::string_view text);
bool EqualFolded(std::string_view a, std::string_view b);
// True when `text` begins with `prefix`, without regard to case.
bool StartsWithFolded(std::string_view text, std::string_view prefix);

std::u16string ToUtf16(std::string_view utf8);
std::string FromUtf16(std::u16string_view utf16);

#if defined(_WIN32)
inline std::wstring ToWide(std::string_view utf8) {
  const std::u16string text = ToUtf16(utf8);
  return std::wstring(text.begin(), text.end());
}
inline std::string FromWide(std::wstring_view wide) {
  return FromUtf16(std::u16string(wide.begin(), wide.end()));
}
// The process's ANSI code page, in which the host takes and gives narrow texts.
std::string FromAnsi(std::string_view ansi);
std::string ToAnsi(std::string_view utf8);
#endif

std::filesystem::path PathFromUtf8(std::string_view text);
std::string PathToUtf8(const std::filesystem::path& path);

// "%g"-like shortest decimal form that reads back as the same double.
std::string NumberText(double value);

std::string Join(const std::string& separator, const auto& texts) {
  std::string joined;
  for (const auto& text : texts) {
    if (!joined.empty()) joined += separator;
    joined += text;
  }
  return joined;
}

std::string Trimmed(std::string_view text);

}  // namespace wb
