// The macro by which the host replaces the selected component with another model.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/numbers.h"

namespace qm {

// "valve-1.prt", all in lower case, as the host's list of files shows it.
std::wstring ReplacingFile(std::wstring_view model, ProMdlType type);

// For a host of this release ("Creo 2.0"): the older ones have another dialog.
std::wstring ReplaceMacro(std::string_view release, std::wstring_view file);

}  // namespace qm
