// The first numbered name that no model has.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "assembly/new_model/new_name_rules.h"

namespace qm {

// A name is free when no model of it can be retrieved; models that are met stay in session. Nothing
// when the names become longer than `longest` characters, which the user is told.
std::optional<std::wstring> FindFreeName(const NewNaming& naming, std::size_t longest);

}  // namespace qm
