// Numbers at the start of texts that users type and settings hold.
#pragma once

#include <string_view>

namespace qm {

// The number that a text begins with after blanks and a sign, 0 when there is none; too large a
// number gives the largest or smallest one. As the C library's _wtoi.
int LeadingInteger(std::wstring_view text);

// The same for real numbers with point and exponent; too large gives infinity. As _wtof.
double LeadingReal(std::wstring_view text);

}  // namespace qm
