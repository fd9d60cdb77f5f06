// Keeps the host's release.
#include "frame/guard/host_release.h"

#include <cstring>

namespace qm {
namespace {

constexpr size_t kMostCharacters = 79;
constinit char kept[kMostCharacters + 1] = {};

}  // namespace

void KeepHostRelease(const char* release) noexcept {
  const size_t length = release == nullptr ? 0 : strnlen(release, kMostCharacters + 1);
  const size_t taken = length <= kMostCharacters ? length : 0;
  if (taken > 0) std::memcpy(kept, release, taken);
  kept[taken] = '\0';
}

std::string_view HostRelease() noexcept {
  return kept;
}

}  // namespace qm
