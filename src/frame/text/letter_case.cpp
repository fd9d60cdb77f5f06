// The table of letters behind case-insensitive names.
#include "frame/text/letter_case.h"

#include <algorithm>
#include <iterator>

namespace qm {
namespace {

struct CapitalRange {
  wchar_t first;
  wchar_t last;
  int step;    // 2 where capitals and small letters alternate
  int offset;  // from a capital to its small letter
};

// Sorted by `first`; ranges do not overlap.
constexpr CapitalRange kCapitals[] = {
    {L'A', L'Z', 1, 32},     {0x00C0, 0x00D6, 1, 32},   {0x00D8, 0x00DE, 1, 32},
    {0x0100, 0x012E, 2, 1},  {0x0130, 0x0130, 1, -199}, {0x0132, 0x0136, 2, 1},
    {0x0139, 0x0147, 2, 1},  {0x014A, 0x0176, 2, 1},    {0x0178, 0x0178, 1, -121},
    {0x0179, 0x017D, 2, 1},  {0x0386, 0x0386, 1, 38},   {0x0388, 0x038A, 1, 37},
    {0x038C, 0x038C, 1, 64}, {0x038E, 0x038F, 1, 63},   {0x0391, 0x03A1, 1, 32},
    {0x03A3, 0x03AB, 1, 32}, {0x0400, 0x040F, 1, 80},   {0x0410, 0x042F, 1, 32},
    {0x0460, 0x0480, 2, 1},  {0x048A, 0x04BE, 2, 1},    {0x04C0, 0x04C0, 1, 15},
    {0x04C1, 0x04CD, 2, 1},  {0x04D0, 0x052E, 2, 1},    {0x0531, 0x0556, 1, 48},
    {0x1E00, 0x1E94, 2, 1},  {0x1EA0, 0x1EFE, 2, 1},    {0x2160, 0x216F, 1, 16},
    {0x24B6, 0x24CF, 1, 26}, {0xFF21, 0xFF3A, 1, 32},
};

wchar_t LowerCased(wchar_t letter) {
  const auto* const after = std::upper_bound(
      std::begin(kCapitals), std::end(kCapitals), letter,
      [](wchar_t value, const CapitalRange& range) { return value < range.first; });
  if (after == std::begin(kCapitals)) return letter;
  const CapitalRange& range = *(after - 1);
  if (letter > range.last || (letter - range.first) % range.step != 0) return letter;
  return static_cast<wchar_t>(letter + range.offset);
}

}  // namespace

std::wstring LowerCased(std::wstring_view text) {
  std::wstring lowered(text);
  for (wchar_t& letter : lowered) letter = LowerCased(letter);
  return lowered;
}

bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](wchar_t x, wchar_t y) { return LowerCased(x) == LowerCased(y); });
}

}  // namespace qm
