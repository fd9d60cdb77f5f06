// Texts of model values and lists of names, as bills and file names show them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qm {

// The names of a comma-separated list as users write it: the full-width comma counts as a comma,
// spaces and empty pieces are dropped, the order is kept.
std::vector<std::wstring> SplitNames(std::wstring_view list);

// Three decimals, whatever decimal sign the host's locale has.
std::wstring RealText(double value);

// 是 for 1, 否 for 0, nothing for anything else.
std::wstring BooleanText(int value);

}  // namespace qm
