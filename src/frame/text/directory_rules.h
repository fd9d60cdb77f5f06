// Folders as the host's model records hold them.
#pragma once

#include <string>
#include <string_view>

namespace qm {

// The folder of a model from the device and path of its record, for example "C" and "\work\" give
// "C:\work\". A path that already begins with a drive or a server stands as it is.
std::wstring ModelFolder(std::wstring_view device, std::wstring_view path);

// Whether two texts name one folder: without regard to case, kind of separator and one at the end.
// Where only one of them begins with a drive, that is not compared.
bool IsSameFolder(std::wstring_view a, std::wstring_view b);

}  // namespace qm
