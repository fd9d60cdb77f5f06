// All families of stand-ins in one.
#include "workbench/windows/windows_hooks.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "workbench/base/windows_headers.h"
#include "workbench/host/host_types.h"

namespace wb {

HookRows Hooks() {
  static const std::vector<Hook> all = [] {
#define WB_ROWS_OF(Family) Family(),
    const HookRows families[] = {WB_HOOK_FAMILIES(WB_ROWS_OF)};
#undef WB_ROWS_OF
    std::vector<Hook> joined;
    for (const HookRows rows : families) joined.insert(joined.end(), rows.begin(), rows.end());
    return joined;
  }();
  return all;
}

bool IsMetFunction(const char* name) {
  const std::string versioned = std::string(name) + QM_HOST_NAME_SUFFIX;
  if (::GetProcAddress(::GetModuleHandleW(nullptr), versioned.c_str()) != nullptr) return true;
  const HookRows hooks = Hooks();
  return std::any_of(hooks.begin(), hooks.end(), [&](const Hook& hook) {
    return hook.is_crossing && std::strcmp(hook.name, name) == 0;
  });
}

}  // namespace wb
