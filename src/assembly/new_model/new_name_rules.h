// Names of new components, numbered from 1 behind the name of a model.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "toolkit/numbers.h"

namespace qm {

struct NewNaming {
  std::wstring base;
  bool has_zeros;        // "_01" to "_09", "_10", ...; otherwise "-1", "-2", ...
  ProMdlType probed_as;  // what a model that has a name already would be
};

// Below the assembly of this name: without its end when that is "_00". Of assemblies with zeros.
NewNaming NamingBelow(std::wstring_view assembly, ProMdlType type);

std::wstring NumberedName(const NewNaming& naming, int number);

// The limit of new components, and that of the host. Deliberately the former is larger: a name of
// 32 characters is tried, and the host makes no model of it.
inline constexpr std::size_t kLongestNewName = 32;
inline constexpr std::size_t kLongestHostName = PRO_NAME_SIZE - 1;

}  // namespace qm
