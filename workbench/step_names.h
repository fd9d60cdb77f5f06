// Names that the host accepts for models that come from other systems.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace wb {

inline constexpr std::size_t kLongestHostName = 31;  // 16-bit characters

// One host name for each product name (UTF-8), in order. Names are at most 31 characters of ASCII
// letters, digits, '_', '-' and non-ASCII letters; any other character becomes '_'; an empty name
// becomes "unnamed". Names that are equal without regard to case, also after cutting, get "_1",
// "_2" ... in the order given, the first keeps its name. The same list always gives the same names.
std::vector<std::string> MakeHostNames(const std::vector<std::string>& product_names);

}  // namespace wb
