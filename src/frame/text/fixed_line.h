// A text built up in a place of its own: nothing is allocated, what does not fit is cut.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace qm {

template <std::size_t Size>
class FixedLine {
 public:
  std::string_view text() const { return {text_, size_}; }
  std::size_t room() const { return Size - size_; }
  void clear() { size_ = 0; }

  FixedLine& operator+=(std::string_view more) {
    const std::size_t taken = std::min(more.size(), room());
    std::copy_n(more.begin(), taken, text_ + size_);
    size_ += taken;
    return *this;
  }

  // At least `digits` of them, with zeros in front.
  FixedLine& AddNumber(long long number, int digits = 1) {
    char reversed[24];
    int length = 0;
    unsigned long long rest = number < 0 ? 0ULL - static_cast<unsigned long long>(number)
                                         : static_cast<unsigned long long>(number);
    for (; rest != 0 || length < digits; rest /= 10) reversed[length++] = "0123456789"[rest % 10];
    if (number < 0) reversed[length++] = '-';
    while (length > 0) *this += std::string_view(&reversed[--length], 1);
    return *this;
  }

 private:
  char text_[Size] = {};
  std::size_t size_ = 0;
};

}  // namespace qm
