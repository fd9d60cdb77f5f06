// The number that a text begins with.
#include "frame/text/number_rules.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

namespace qm {
namespace {

// What the C library's wide conversions skip: the narrow blanks and those of other scripts, the
// no-break and the full-width space among them.
bool IsBlank(wchar_t c) {
  if (c >= 0x2000 && c <= 0x200A) return true;
  constexpr std::wstring_view kBlanks =
      L"\t\n\v\f\r \u0085\u00A0\u1680\u2028\u2029\u202F\u205F\u3000";
  return kBlanks.find(c) != std::wstring_view::npos;
}

std::wstring_view WithoutLeadingBlanks(std::wstring_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  return text;
}

bool IsSign(wchar_t c) {
  return c == L'+' || c == L'-';
}
bool IsDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}
bool IsExponentMark(wchar_t c) {
  return c == L'e' || c == L'E' || c == L'd' || c == L'D';
}

// Zeros of the digits that the C library counts in whole numbers besides the plain ones: of the
// Arabic, Indic and other scripts, and the full-width ones. In real numbers it counts none of them.
constexpr wchar_t kOtherZeros[] = {
    0x0660, 0x06F0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0C66, 0x0CE6,
    0x0D66, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x17E0, 0x1810, 0xFF10,
};

// -1 for what is no digit of a whole number.
int DigitOf(wchar_t c) {
  if (IsDigit(c)) return c - L'0';
  for (const wchar_t zero : kOtherZeros) {
    if (c >= zero && c <= zero + 9) return c - zero;
  }
  return -1;
}

// The longest number at the start of a text, as plain ASCII without a leading "+".
class RealLiteral {
 public:
  explicit RealLiteral(std::wstring_view text) : rest_(WithoutLeadingBlanks(text)) {
    TakeSign();
    const size_t whole = TakeDigits();
    size_t fraction = 0;
    if (!rest_.empty() && rest_.front() == L'.') {
      Take();
      fraction = TakeDigits();
    }
    if (whole + fraction == 0) {
      literal_.clear();
      return;
    }
    TakeExponent();
  }

  const std::string& text() const { return literal_; }

 private:
  void Take() {
    literal_ += static_cast<char>(rest_.front());
    rest_.remove_prefix(1);
  }
  void TakeSign() {
    if (rest_.empty() || !IsSign(rest_.front())) return;
    if (rest_.front() == L'-') literal_ += '-';
    rest_.remove_prefix(1);
  }
  size_t TakeDigits() {
    size_t count = 0;
    for (; !rest_.empty() && IsDigit(rest_.front()); ++count) Take();
    return count;
  }
  // A mark without digits behind it does not belong to the number.
  void TakeExponent() {
    if (rest_.empty() || !IsExponentMark(rest_.front())) return;
    const size_t digits = rest_.size() > 1 && IsSign(rest_[1]) ? 2 : 1;
    if (rest_.size() <= digits || !IsDigit(rest_[digits])) return;
    rest_.remove_prefix(1);
    literal_ += 'e';
    TakeSign();
    TakeDigits();
  }

  std::wstring_view rest_;
  std::string literal_;
};

// Decides what a number outside the range of a double was. Its decimal exponent is far from 0 then,
// so the count of digits before the point plus the written exponent tells.
bool IsHuge(std::string_view literal) {
  const size_t mark = literal.find('e');
  const std::string_view mantissa = literal.substr(0, mark);
  const size_t point = std::min(mantissa.find('.'), mantissa.size());
  const size_t first = mantissa.find_first_of("123456789");
  long long exponent = static_cast<long long>(point) - static_cast<long long>(first);
  if (mark != std::string_view::npos) {
    long long written = 0;
    const char* const begin = literal.data() + mark + 1;
    const auto [end, error] = std::from_chars(begin, literal.data() + literal.size(), written);
    if (error == std::errc::result_out_of_range) return *begin != '-';
    exponent += written;
  }
  return exponent > 0;
}

}  // namespace

int LeadingInteger(std::wstring_view text) {
  text = WithoutLeadingBlanks(text);
  const bool negative = !text.empty() && text.front() == L'-';
  if (!text.empty() && IsSign(text.front())) text.remove_prefix(1);
  using Limits = std::numeric_limits<int>;
  int64_t value = 0;
  for (; !text.empty() && DigitOf(text.front()) >= 0; text.remove_prefix(1)) {
    value = value * 10 + DigitOf(text.front());
    if (value > Limits::max()) return negative ? Limits::min() : Limits::max();
  }
  return static_cast<int>(negative ? -value : value);
}

double LeadingReal(std::wstring_view text) {
  const std::string literal = RealLiteral(text).text();
  if (literal.empty()) return 0.0;
  double value = 0.0;
  const auto [end, error] = std::from_chars(literal.data(), literal.data() + literal.size(), value);
  if (error != std::errc::result_out_of_range) return value;
  const double magnitude = IsHuge(literal) ? std::numeric_limits<double>::infinity() : 0.0;
  return literal.front() == '-' ? -magnitude : magnitude;
}

}  // namespace qm
