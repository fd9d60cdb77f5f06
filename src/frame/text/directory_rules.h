// Folders as the host's model records hold them.
#pragma once

#include <string>
#include <string_view>

namespace qm {

// The folder of a model from the device and path of its record, for example "C" and "\work\" give
// "C:\work\". A path that already begins with a drive or a server stands as it is.
std::wstring ModelFolder(std::wstring_view device, std::wstring_view path);

}  // namespace qm
