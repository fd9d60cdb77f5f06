// Where a command applies, by the host's current mode.
#pragma once

namespace qm {

enum class AccessRule {
  kAlways,
  kAssemblyMode,        // assembly or manufacturing
  kSolidMode,           // the part modes, assembly or manufacturing
  kPartOrAssemblyMode,  // the part modes or assembly, not manufacturing
  kDrawingMode,
};

bool AllowsMode(AccessRule rule, int mode);

}  // namespace qm
