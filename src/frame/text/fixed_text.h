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

// Fills the buffer and closes it; what does not fit is cut.
template <std::size_t Size>
void FillFixedText(std::wstring_view text, wchar_t (&buffer)[Size]) {
  const std::size_t length = std::min(text.size(), Size - 1);
  std::copy_n(text.begin(), length, buffer);
  std::fill(buffer + length, std::end(buffer), L'\0');
}

}  // namespace qm
