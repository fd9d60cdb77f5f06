// A parameter's typed value, apart from the host's form of it.
#pragma once

#include <cstddef>
#include <string>
#include <variant>

#include "toolkit/numbers.h"

namespace qm {

// An integer, a real number, a string or a yes/no parameter.
using ParamValue = std::variant<int, double, std::wstring, bool>;

// Longest texts, in 16-bit characters, that the host stores.
inline constexpr std::size_t kMaxParamNameLength = PRO_NAME_SIZE - 1;
inline constexpr std::size_t kMaxParamTextLength = PRO_LINE_SIZE - 1;

}  // namespace qm
