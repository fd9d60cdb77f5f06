// Reads text files.
#include "frame/settings/text_file.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>

#include "frame/text/text.h"

namespace qm {
namespace {

constexpr std::streamsize kLargestFile = 64 * 1024;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string ReadBytes(const std::wstring& path) {
  std::string bytes(kLargestFile + 1, '\0');
  std::ifstream file(std::filesystem::path(path), std::ios::binary);
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<size_t>(file.gcount()));
  return bytes.size() <= kLargestFile ? bytes : std::string();
}

std::optional<std::wstring> FromUtf8(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  const int length =
      ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, wide.data(), size);
  if (length <= 0) return std::nullopt;
  wide.resize(static_cast<size_t>(length));
  return wide;
}

}  // namespace

std::wstring ReadTextFile(const std::wstring& path) {
  const std::string bytes = ReadBytes(path);
  std::string_view text = bytes;
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  if (text.empty()) return {};
  const auto utf8 = FromUtf8(text);
  return utf8 ? *utf8 : FromAnsi(text);
}

}  // namespace qm
