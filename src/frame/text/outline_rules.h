// Outlines of models: the size of a common box, as a text such as "120.5×80.0×6.0".
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace qm {

// The box around all surfaces seen so far, in the model's own units and directions.
class OutlineBox {
 public:
  // Widens the box by a surface's corners. False, and the box is unchanged, when they span no box.
  bool Include(const double (&min)[3], const double (&max)[3]);

  bool empty() const { return empty_; }
  // Sizes along x, y and z; zeros when the box is empty.
  std::array<double, 3> Sizes() const;

 private:
  bool empty_ = true;
  std::array<double, 3> min_{};
  std::array<double, 3> max_{};
};

// Decimals for the text, from the number at the start of `option`: 0 when there is none, at most 6.
int OutlineDecimals(std::wstring_view option);

// With fixed decimals, halves rounded up, whatever decimal sign the host's locale has. Empty for
// what is no number or has too many digits.
std::wstring FixedNumberText(double number, int decimals);

// The three sizes with fixed decimals, halves rounded up, and "×" between them: from the largest to
// the smallest, or in x, y, z order. Nothing when a size is no number or the text too long for a
// parameter.
std::optional<std::wstring> OutlineText(std::array<double, 3> sizes, int decimals, bool descending);

}  // namespace qm
