// Names that the host accepts for models that come from other systems.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace wb {

inline constexpr std::size_t kLongestHostName = 31;  // 16-bit characters

struct ProductName {
  std::string name;  // UTF-8
  bool assembly = false;
};
struct HostName {
  std::string name;
  bool numbered = false;  // to tell it from another one
};

// One host name for each product name, in order. Names are at most 31 characters of ASCII letters,
// digits, '_', '-' and non-ASCII letters; any other character becomes '_'; an empty name becomes
// "unnamed", a device's name (which no file can bear) gets '_' at its end. Parts of names that are
// equal without regard to case, also after cutting, get "_1", "_2" ... in the order given, the
// first keeps its name; so do assemblies, but a part and an assembly may bear one name. The same
// list always gives the same names.
std::vector<HostName> MakeHostNames(const std::vector<ProductName>& products);

}  // namespace wb
