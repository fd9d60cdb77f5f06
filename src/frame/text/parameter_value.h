// A parameter's typed value, apart from the host's form of it.
#pragma once

#include <cstddef>
#include <string>
#include <variant>

namespace qm {

// An integer, a real number, a string or a yes/no parameter.
using ParamValue = std::variant<int, double, std::wstring, bool>;

// Longest texts, in 16-bit characters, that the host stores.
inline constexpr std::size_t kMaxParamNameLength = 31;
inline constexpr std::size_t kMaxParamTextLength = 80;

}  // namespace qm
