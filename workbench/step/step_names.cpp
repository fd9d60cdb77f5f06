// Turns any product name into a host name, and tells equal ones apart by number.
#include "workbench/step/step_names.h"

#include <map>
#include <set>

#include "workbench/base/text.h"

namespace wb {
namespace {

struct Range {
  char16_t first, last;
};
// Punctuation, marks, blanks and private characters outside ASCII; everything else counts as a
// letter. Halves of characters beyond the first plane are judged together, in Cleaned.
constexpr Range kNoLetters[] = {
    {0x0080, 0x00A9}, {0x00AB, 0x00B4}, {0x00B6, 0x00B9}, {0x00BB, 0x00BF}, {0x00D7, 0x00D7},
    {0x00F7, 0x00F7}, {0x2000, 0x2BFF}, {0x3000, 0x3004}, {0x3008, 0x3020}, {0x3030, 0x3030},
    {0xD800, 0xF8FF}, {0xFE00, 0xFE6F}, {0xFEFF, 0xFF0F}, {0xFF1A, 0xFF20}, {0xFF3B, 0xFF40},
    {0xFF5B, 0xFF65}, {0xFFE0, 0xFFFF},
};

bool IsAllowed(char16_t c) {
  if (c < 0x80) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
           c == '-';
  }
  for (const Range& range : kNoLetters) {
    if (c >= range.first && c <= range.last) return false;
  }
  return true;
}

// What Windows takes for a device, whatever extension follows.
bool IsDevice(std::string_view folded) {
  if (folded == "con" || folded == "prn" || folded == "aux" || folded == "nul") return true;
  const bool port = folded.starts_with("com") || folded.starts_with("lpt");
  return port && folded.size() == 4 && folded[3] >= '1' && folded[3] <= '9';
}

std::u16string Cleaned(const std::string& name) {
  std::u16string cleaned;
  for (const char16_t c : ToUtf16(name)) {
    if (c >= 0xDC00 && c <= 0xDFFF) continue;  // its first half has become '_' already
    cleaned += IsAllowed(c) ? c : u'_';
  }
  if (IsDevice(FoldCase(FromUtf16(cleaned)))) cleaned += u'_';
  return cleaned.empty() ? u"unnamed" : cleaned;
}

std::string Cut(const std::u16string& name, const std::string& suffix) {
  return FromUtf16(name.substr(0, kLongestHostName - suffix.size())) + suffix;
}

}  // namespace

std::vector<HostName> MakeHostNames(const std::vector<ProductName>& products) {
  std::vector<HostName> names;
  using Key = std::pair<std::string, bool>;  // without case, with the type
  std::set<Key> taken;
  std::map<std::pair<std::u16string, bool>, int> last_used;  // so that many twins stay fast
  for (const ProductName& product : products) {
    const std::u16string cleaned = Cleaned(product.name);
    std::string name = Cut(cleaned, "");
    int& number = last_used[{cleaned, product.assembly}];
    const int before = number;
    while (!taken.insert({FoldCase(name), product.assembly}).second) {
      name = Cut(cleaned, "_" + std::to_string(++number));
    }
    names.push_back({std::move(name), number > before});
  }
  return names;
}

}  // namespace wb
