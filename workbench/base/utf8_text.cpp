// Checks UTF-8 text and counts it the way the host does.
#include "workbench/base/utf8_text.h"

#include <cstdint>
#include <fstream>
#include <iterator>

namespace wb {
namespace {

// Length of the sequence that `lead` opens, 0 when no sequence can begin with it.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if ((lead & 0xF0) == 0xE0) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

// Length of the well-formed sequence at the start of `text`, 0 when there is none.
std::size_t WellFormedLength(std::string_view text) {
  static constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  static constexpr unsigned char kLeadMask[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t length = SequenceLength(lead);
  if (length == 0 || length > text.size()) return 0;
  std::uint32_t code = lead & kLeadMask[length];
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0) != 0x80) return 0;
    code = (code << 6) | (byte & 0x3F);
  }
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  return code < kSmallest[length] || surrogate || code > 0x10FFFF ? 0 : length;
}

}  // namespace

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = WellFormedLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::size_t WideLength(std::string_view text) {
  std::size_t units = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0) != 0x80) units += byte >= 0xF0 ? 2 : 1;
  }
  return units;
}

std::string_view WithoutBom(std::string_view text) {
  if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
  return text;
}

std::optional<std::string> ReadFileBytes(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  if (!stream) return std::nullopt;
  std::string bytes{std::istreambuf_iterator<char>(stream), {}};
  if (stream.bad()) return std::nullopt;
  return bytes;
}

}  // namespace wb
