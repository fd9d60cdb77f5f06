// Texts in the host's fixed buffers, read and filled: neither way trusts a closing zero that the
// other side may have forgotten, nor a text to fit.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace qm {

// The text up to its closing zero, or to the buffer's end where the host left none: a path that is
// cut would be another folder's. Lives as long as the buffer.
template <std::size_t Size>
std::wstring_view FixedText(const wchar_t (&buffer)[Size]) {
  const wchar_t* const end = std::find(std::begin(buffer), std::end(buffer), L'\0');
  return {buffer, static_cast<std::size_t>(end - buffer)};
}

// Fills the buffer and closes it. False, and the buffer is empty, when the text does not fit: cut,
// it would name something else.
template <std::size_t Size>
[[nodiscard]] bool FillFixedText(std::wstring_view text, wchar_t (&buffer)[Size]) {
  const bool fits = text.size() < Size;
  const std::size_t length = fits ? text.size() : 0;
  std::copy_n(text.begin(), length, buffer);
  std::fill(buffer + length, std::end(buffer), L'\0');
  return fits;
}

}  // namespace qm
