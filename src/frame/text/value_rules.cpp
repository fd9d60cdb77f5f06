// Texts of model values.
#include "frame/text/value_rules.h"

#include <charconv>
#include <system_error>

namespace qm {
namespace {

constexpr int kDecimals = 3;
// The largest double has 309 digits before the point.
constexpr size_t kLongestReal = 400;

}  // namespace

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
