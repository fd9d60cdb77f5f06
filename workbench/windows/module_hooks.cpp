// Look-ups of functions in modules: those of the host that are missing here are named.
#include "workbench/base/windows_headers.h"
#include "workbench/host/host.h"
#include "workbench/host/host_types.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

// A function of the host that the workbench does not have, or withholds in this run, is named: the
// plug-in only sees that it is missing.
FARPROC WINAPI HookGetProcAddress(HMODULE module, LPCSTR name) {
  const FARPROC found = ::GetProcAddress(module, name);
  if (!HasHost() || module != ::GetModuleHandleW(nullptr) || IS_INTRESOURCE(name)) return found;
  std::string function = name;
  const std::string suffix = QM_HOST_NAME_SUFFIX;
  if (function.ends_with(suffix)) function.resize(function.size() - suffix.size());
  if (TheHost().windows.withheld.contains(function)) return nullptr;
  if (found == nullptr) {
    TheHost().events.Add(Gap{"workbench: not modelled: " + function});
  }
  return found;
}

}  // namespace

HookRows ModuleHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(GetProcAddress)>("GetProcAddress", &HookGetProcAddress, false),
  };
  return kRows;
}

}  // namespace wb
