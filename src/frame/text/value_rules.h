// Texts of model values, as bills and file names show them.
#pragma once

#include <string>

namespace qm {

// Three decimals, whatever decimal sign the host's locale has.
std::wstring RealText(double value);

// 是 for 1, 否 for 0, nothing for anything else.
std::wstring BooleanText(int value);

}  // namespace qm
