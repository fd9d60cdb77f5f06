// Names that files can bear.
#pragma once

#include <string_view>

namespace qm {

// Whether Windows can hold a file of this name, its extension included.
bool IsWindowsFileName(std::wstring_view name);

}  // namespace qm
