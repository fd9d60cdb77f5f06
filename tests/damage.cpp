// Damage, deed by deed.
#include "tests/damage.h"

#include <algorithm>
#include <cctype>
#include <random>

namespace {

constexpr size_t kLongestSpan = 64;
constexpr size_t kDeepNesting = 20000;
constexpr std::string_view kExtremes[] = {
    "0",      "-1",    "2147483647", "2147483648", "-2147483649", "18446744073709551616",
    "1e308",  "1e999", "-0.0",       "nan",        "0x7fffffff",  "00000000000000000001",
    "3.14.15"};
// clang-format off
constexpr std::string_view kBytes[] = {
    "\"", "'", "(", ")", "[", "]", "{", "}", "<", ">", "&", ";", ",", "=", "#", "%", "\\", "\n",
    "\r\n", "\t", "\xFF", "\xEF\xBB\xBF", "\xC3", "\xED\xA0\x80", "\xF0\x9F\x98\x80", "%0w", "%9d",
    "$", "*", std::string_view("\0", 1)};
// clang-format on
constexpr std::string_view kOpening = "([{<\"";

class Damage {
 public:
  Damage(std::string_view content, unsigned seed) : text_(content), chance_(seed) {}

  std::string Done() {
    for (size_t deeds = 1 + Below(8); deeds > 0; --deeds) Do(Below(9));
    return std::move(text_);
  }

 private:
  void Do(size_t deed) {
    switch (deed) {
      case 0:
        return FlipByte();
      case 1:
        return PutIn(kBytes[Below(std::size(kBytes))]);
      case 2:
        return static_cast<void>(text_.erase(Place(), 1 + Below(kLongestSpan)));
      case 3:
        return PutIn(Span());
      case 4:
        return ChangeNumber();
      case 5:
        return SwapSpans();
      case 6:
        return DropLine();
      case 7:
        return Rarely([&] { text_.resize(Place()); });
      default:
        return Rarely([&] { Nest(); });
    }
  }

  size_t Below(size_t bound) { return bound == 0 ? 0 : chance_() % bound; }
  size_t Place() { return Below(text_.size() + 1); }
  std::string Span() { return text_.substr(Place(), 1 + Below(kLongestSpan)); }
  void PutIn(std::string_view what) { text_.insert(Place(), what); }

  // What leaves little to be read otherwise.
  template <class Deed>
  void Rarely(const Deed& deed) {
    if (Below(8) == 0) deed();
  }

  void FlipByte() {
    if (!text_.empty()) text_[Below(text_.size())] ^= static_cast<char>(1 << Below(8));
  }

  void SwapSpans() {
    const std::string span = Span();
    const size_t at = Place();
    text_.replace(at, std::min(span.size(), text_.size() - at), Span());
    PutIn(span);
  }

  void ChangeNumber() {
    const auto is_digit = [](unsigned char c) { return std::isdigit(c) != 0; };
    const auto first =
        std::find_if(text_.begin() + static_cast<std::ptrdiff_t>(Place()), text_.end(), is_digit);
    const auto last = std::find_if_not(first, text_.end(), is_digit);
    text_.replace(first, last, kExtremes[Below(std::size(kExtremes))]);
  }

  void DropLine() {
    const size_t begin = text_.find('\n', Place());
    if (begin == std::string::npos) return;
    text_.erase(begin, text_.find('\n', begin + 1) - begin);
  }

  void Nest() {
    const size_t at = text_.find_first_of(kOpening, Place());
    if (at != std::string::npos) text_.insert(at, kDeepNesting, text_[at]);
  }

  std::string text_;
  std::mt19937 chance_;
};

}  // namespace

std::string Damaged(std::string_view content, unsigned seed) {
  return Damage(content, seed).Done();
}
