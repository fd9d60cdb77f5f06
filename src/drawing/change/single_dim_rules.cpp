// The macro of the single dimension.
#include "drawing/change/single_dim_rules.h"

#include <algorithm>

namespace qm {

std::wstring MacroOf(std::wstring_view file_text) {
  std::wstring macro;
  while (!file_text.empty()) {
    const size_t end = std::min(file_text.find_first_of(L"\r\n"), file_text.size());
    const std::wstring_view line = file_text.substr(0, end);
    if (!line.starts_with(L'#')) macro += line;
    file_text.remove_prefix(std::min(end + 1, file_text.size()));
  }
  return macro;
}

}  // namespace qm
