// The release of the host, as it told it at the start.
#pragma once

#include <string_view>

namespace qm {

// A copy, since the host's own text may not last. A null text, or one that is longer than any
// release, is kept as an empty one.
void KeepHostRelease(const char* release) noexcept;

// "Creo 2.0"; empty before the start.
std::string_view HostRelease() noexcept;

}  // namespace qm
