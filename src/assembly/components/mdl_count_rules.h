// What is counted for instances of family tables, and counts as values of parameters.
#pragma once

#include <optional>
#include <string_view>

#include "frame/models/parameter_value.h"

namespace qm {

// Where the count of an instance goes.
enum class InstanceCounts {
  kIntoGeneric,  // summed into the generic's parameter
  kOwnCells,     // into the instance's cell of the parameter's column
};
// By the setting without its blanks: "1" means cells of their own, anything else the generic.
InstanceCounts InstanceCountsBy(std::wstring_view setting);

// The count as a parameter of this type takes it: a whole or real number, or a text. Nothing for
// the other types.
std::optional<ParamValue> CountAs(ProParamvalueType type, int count);

}  // namespace qm
