// Names in the host's fixed buffers, and the search for a parameter by its name.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "toolkit/parameter.h"

namespace qm {

// Fills a fixed text of the host and closes it; what does not fit is cut.
template <std::size_t Size>
void CopyToHost(std::wstring_view text, wchar_t (&buffer)[Size]) {
  const std::size_t length = std::min(text.size(), Size - 1);
  std::copy_n(text.begin(), length, buffer);
  std::fill(buffer + length, std::end(buffer), L'\0');
}

// A name in the host's fixed buffer.
struct HostName {
  explicit HostName(std::wstring_view text) { CopyToHost(text, name); }
  ProName name{};
};

// Finds a parameter of `item`. A success that fills nothing in counts as a failure.
ProError FindParameter(ProModelitem* item, HostName& name, ProParameter* parameter);

}  // namespace qm
