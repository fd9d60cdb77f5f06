// Measure and text of a model's outline.
#include "frame/text/outline_rules.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>

#include "frame/text/number_rules.h"
#include "toolkit/numbers.h"

namespace qm {
namespace {

constexpr wchar_t kTimes[] = L"×";
constexpr int kMaxDecimals = 6;
// What a parameter of the host stores.
constexpr std::size_t kMaxTextLength = PRO_LINE_SIZE - 1;

// False also for corners that are no numbers.
bool SpanBox(const double (&min)[3], const double (&max)[3]) {
  for (size_t axis = 0; axis < 3; ++axis) {
    if (!std::isfinite(min[axis]) || !std::isfinite(max[axis]) || min[axis] > max[axis]) {
      return false;
    }
  }
  return true;
}

}  // namespace

std::wstring FixedNumberText(double number, int decimals) {
  // Sizes often end in an exact half, which drawings round up and the library to the even digit.
  const double scale = std::pow(10.0, decimals);
  const double rounded = std::round(number * scale) / scale;
  if (!std::isfinite(rounded)) return {};
  char digits[kMaxTextLength];
  const auto [end, error] =
      std::to_chars(digits, digits + sizeof(digits), rounded, std::chars_format::fixed, decimals);
  return error == std::errc() ? std::wstring(digits, end) : std::wstring();
}

bool OutlineBox::Include(const double (&min)[3], const double (&max)[3]) {
  if (!SpanBox(min, max)) return false;
  for (size_t axis = 0; axis < 3; ++axis) {
    min_[axis] = empty_ ? min[axis] : std::min(min_[axis], min[axis]);
    max_[axis] = empty_ ? max[axis] : std::max(max_[axis], max[axis]);
  }
  empty_ = false;
  return true;
}

std::array<double, 3> OutlineBox::Sizes() const {
  return {max_[0] - min_[0], max_[1] - min_[1], max_[2] - min_[2]};
}

int OutlineDecimals(std::wstring_view option) {
  return std::clamp(LeadingInteger(option), 0, kMaxDecimals);
}

std::optional<std::wstring> OutlineText(std::array<double, 3> sizes, int decimals,
                                        bool descending) {
  if (descending) std::sort(sizes.begin(), sizes.end(), std::greater<>());
  std::wstring text;
  for (const double size : sizes) {
    const std::wstring one = FixedNumberText(size, decimals);
    if (one.empty()) return std::nullopt;
    if (!text.empty()) text += kTimes;
    text += one;
  }
  if (text.size() > kMaxTextLength) return std::nullopt;
  return text;
}

}  // namespace qm
