// What the user typed in the parameter dialog, turned into a typed value or into a refusal that
// says what to correct.
#pragma once

#include <string_view>
#include <variant>

#include "frame/models/parameter_value.h"

namespace qm {

// A message to show when the input cannot be used.
struct Refusal {
  const wchar_t* message;
};

using ValueOrRefusal = std::variant<ParamValue, Refusal>;

// Why the name cannot be a parameter's name; null when it can.
const wchar_t* ParamNameRefusal(std::wstring_view name);

// The value for creating a parameter. `type` is the name chosen in the type menu, compared whole.
ValueOrRefusal ValueToAdd(std::wstring_view type, std::wstring_view text);

// The value for updating: as for creating, but a yes/no parameter is always set to yes.
ValueOrRefusal ValueToUpdate(std::wstring_view type, std::wstring_view text);

}  // namespace qm
