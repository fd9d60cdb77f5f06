// Texts of model values and lists of names.
#include "frame/text/value_rules.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace qm {
namespace {

constexpr wchar_t kFullWidthComma = 0xFF0C;
constexpr int kDecimals = 3;
// The largest double has 309 digits before the point.
constexpr size_t kLongestReal = 400;

}  // namespace

std::vector<std::wstring> SplitNames(std::wstring_view list) {
  std::vector<std::wstring> names;
  std::wstring name;
  const auto finish = [&] {
    if (!name.empty()) names.push_back(std::move(name));
    name.clear();
  };
  for (const wchar_t c : list) {
    if (c == L',' || c == kFullWidthComma) {
      finish();
    } else if (c != L' ') {
      name += c;
    }
  }
  finish();
  return names;
}

std::wstring RealText(double value) {
  char digits[kLongestReal];
  const auto [end, error] =
      std::to_chars(digits, digits + sizeof(digits), value, std::chars_format::fixed, kDecimals);
  return error == std::errc() ? std::wstring(digits, end) : std::wstring();
}

std::wstring BooleanText(int value) {
  if (value != 0 && value != 1) return {};
  return value == 1 ? L"是" : L"否";
}

}  // namespace qm
