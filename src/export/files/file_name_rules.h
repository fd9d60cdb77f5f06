// Names that files can bear.
#pragma once

#include <string_view>

namespace qm {

// Whether Windows can hold a file of this name, its extension included.
bool IsWindowsFileName(std::wstring_view name);
// Whether Windows would take the name for something else than a file in the folder that it is put
// into: a path, or the stream of a file.
bool IsElsewhere(std::wstring_view name);

}  // namespace qm
