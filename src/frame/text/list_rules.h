// Lists and settings as users type them: blanks, commas, full-width commas.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qm {

// `text` without any of its spaces: most settings are compared so.
std::wstring WithoutBlanks(std::wstring_view text);

// The pieces between commas, of which the full-width "，" is one. Blanks belong to a piece, empty
// pieces are dropped, the order is kept.
std::vector<std::wstring> SplitAtCommas(std::wstring_view list);

// The names of a list: its pieces without any spaces.
std::vector<std::wstring> SplitNames(std::wstring_view list);

}  // namespace qm
