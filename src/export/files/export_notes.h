// What the user reads while files are exported.
#pragma once

#include <cstddef>
#include <string>

namespace qm {

// How far the run is, in the message area.
void TellProgress(std::size_t done, std::size_t count, const std::wstring& name);

// Tells, in the message area and the run log, a file that Windows cannot hold: before anything is
// written. The host is asked for it as well, since it may know a way. `name` is the path's last
// part.
void TellUnfitFile(const std::wstring& path, const std::wstring& name);

}  // namespace qm
