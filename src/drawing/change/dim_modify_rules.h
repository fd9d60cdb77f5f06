// The buttons of the dimension palette: what each of them does to a dimension.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace qm {

enum class DimChange {
  kPrefix,        // a new text
  kQuantity,      // a typed number before the present text
  kEqualSpacing,  // a suffix behind it
  kDepth,         // a typed depth behind it
  kUpper,         // a tolerance
  kLower,
  kSymmetric,
};

struct DimButton {
  const char* button;
  DimChange change;
  const wchar_t* text;  // of a prefix, whole
  double value;         // of a tolerance
};
std::span<const DimButton> DimButtons();

bool IsTolerance(DimChange change);
// Whether the user types something, which must not be empty.
bool WantsTyping(DimChange change);
// Whether what is selected is let go at the end.
bool ClearsSelection(DimChange change);

// The dimension's new line. `present` is its first line, none when it has no text; `typed` is what
// the user typed. Nothing when it is longer than a line of the host.
std::optional<std::wstring> NewDimLine(const DimButton& button, std::wstring_view typed,
                                       const std::optional<std::wstring>& present);

struct DimTolerance {
  double upper;
  double lower;  // an amount below
};
DimTolerance ToleranceOf(const DimButton& button);

}  // namespace qm
