// Conversions between the text forms that meet in the workbench.
#include "workbench/base/text.h"

#include <algorithm>
#include <charconv>

#if defined(_WIN32)
#include "workbench/base/windows_headers.h"
#else
#include <locale.h>
#include <wctype.h>
#endif

namespace wb {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

char FoldedChar(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// By way of the capital, since some letters have two small ones.
char16_t FoldedUnit(char16_t unit) {
#if defined(_WIN32)
  wchar_t letter = unit;
  ::CharUpperBuffW(&letter, 1);
  ::CharLowerBuffW(&letter, 1);
  return letter;
#else
  static const locale_t unicode = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  if (unicode == nullptr) return unit;
  return static_cast<char16_t>(::towlower_l(::towupper_l(unit, unicode), unicode));
#endif
}

std::string FoldedUnicode(std::string_view text) {
  std::u16string units = ToUtf16(text);
  for (char16_t& unit : units) unit = FoldedUnit(unit);
  return FromUtf16(units);
}

// Decodes one code point at `at` and moves past it; malformed bytes give the replacement mark.
char32_t NextCodePoint(std::string_view text, size_t& at) {
  const auto byte = static_cast<unsigned char>(text[at++]);
  if (byte < 0x80) return byte;
  const int extra = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC2 ? 1 : 0;
  if (extra == 0 || byte > 0xF4) return kReplacement;
  char32_t point = byte & (0x3F >> extra);
  for (int i = 0; i < extra; ++i) {
    if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) {
      return kReplacement;
    }
    point = (point << 6) | (static_cast<unsigned char>(text[at++]) & 0x3F);
  }
  return point;
}

void AppendUtf8(std::string& out, char32_t point) {
  if (point < 0x80) {
    out += static_cast<char>(point);
  } else if (point < 0x800) {
    out += static_cast<char>(0xC0 | (point >> 6));
    out += static_cast<char>(0x80 | (point & 0x3F));
  } else if (point < 0x10000) {
    out += static_cast<char>(0xE0 | (point >> 12));
    out += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (point & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (point >> 18));
    out += static_cast<char>(0x80 | ((point >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (point & 0x3F));
  }
}

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

std::string FoldCase(std::string_view text) {
  if (!IsAscii(text)) return FoldedUnicode(text);
  std::string folded(text);
  for (char& c : folded) c = FoldedChar(c);
  return folded;
}

bool EqualFolded(std::string_view a, std::string_view b) {
  if (!IsAscii(a) || !IsAscii(b)) return FoldCase(a) == FoldCase(b);
  return a.size() == b.size() && StartsWithFolded(a, b);
}

bool StartsWithFolded(std::string_view text, std::string_view prefix) {
  if (!IsAscii(prefix)) return FoldCase(text).starts_with(FoldCase(prefix));
  if (text.size() < prefix.size()) return false;
  for (size_t i = 0; i < prefix.size(); ++i) {
    if (FoldedChar(text[i]) != FoldedChar(prefix[i])) return false;
  }
  return true;
}

std::u16string ToUtf16(std::string_view utf8) {
  std::u16string out;
  out.reserve(utf8.size());
  for (size_t at = 0; at < utf8.size();) {
    const char32_t point = NextCodePoint(utf8, at);
    if (point < 0x10000) {
      out += static_cast<char16_t>(point);
    } else {
      out += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
      out += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
    }
  }
  return out;
}

std::string FromUtf16(std::u16string_view utf16) {
  std::string out;
  out.reserve(utf16.size());
  for (size_t at = 0; at < utf16.size(); ++at) {
    const char16_t unit = utf16[at];
    if (IsHighSurrogate(unit) && at + 1 < utf16.size() && IsLowSurrogate(utf16[at + 1])) {
      AppendUtf8(out, 0x10000 + ((unit - 0xD800u) << 10) + (utf16[++at] - 0xDC00u));
    } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
      AppendUtf8(out, kReplacement);
    } else {
      AppendUtf8(out, unit);
    }
  }
  return out;
}

#if defined(_WIN32)
std::string FromAnsi(std::string_view ansi) {
  const int size = static_cast<int>(ansi.size());
  std::wstring wide(ansi.size(), L'\0');
  const int count = ::MultiByteToWideChar(CP_ACP, 0, ansi.data(), size, wide.data(), size);
  wide.resize(static_cast<size_t>(count));
  return FromWide(wide);
}

std::string ToAnsi(std::string_view utf8) {
  const std::wstring wide = ToWide(utf8);
  const int size = static_cast<int>(wide.size());
  std::string ansi(wide.size() * 4, '\0');
  const int count = ::WideCharToMultiByte(CP_ACP, 0, wide.data(), size, ansi.data(),
                                          static_cast<int>(ansi.size()), nullptr, nullptr);
  ansi.resize(static_cast<size_t>(count));
  return ansi;
}
#endif

std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::string PathToUtf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

std::string NumberText(double value) {
  char buffer[40];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  return std::string(buffer, end);
}

std::string Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(kBlanks) - first + 1));
}

}  // namespace wb
