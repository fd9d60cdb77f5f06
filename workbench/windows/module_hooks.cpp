// Look-ups of modules, which can be made to fail, and of functions in them: those of the host that
// are missing here are named.
#include "workbench/windows/windows_crossing.h"
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

// The plug-in asks for the host's own module once for each function that it calls for the first
// time, so these look-ups would count differently in every run.
HMODULE WINAPI HookGetModuleHandleW(LPCWSTR name) {
  if (name == nullptr || !HasHost()) return ::GetModuleHandleW(name);
  return ErrorCrossing("GetModuleHandleW", DescribeArgument(name), HMODULE{nullptr},
                       ERROR_MOD_NOT_FOUND, [&] { return ::GetModuleHandleW(name); });
}

DWORD WINAPI HookGetModuleFileNameW(HMODULE module, LPWSTR path, DWORD size) {
  return ErrorCrossing("GetModuleFileNameW", "", DWORD{0}, ERROR_MOD_NOT_FOUND,
                       [&] { return ::GetModuleFileNameW(module, path, size); });
}

BOOL WINAPI HookGetModuleHandleExW(DWORD flags, LPCWSTR name, HMODULE* module) {
  return ErrorCrossing("GetModuleHandleExW", std::to_string(flags), BOOL{FALSE},
                       ERROR_MOD_NOT_FOUND,
                       [&] { return ::GetModuleHandleExW(flags, name, module); });
}

}  // namespace

HookRows ModuleHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(GetProcAddress)>("GetProcAddress", &HookGetProcAddress, false),
      HookRow<decltype(GetModuleHandleW)>("GetModuleHandleW", &HookGetModuleHandleW),
      HookRow<decltype(GetModuleFileNameW)>("GetModuleFileNameW", &HookGetModuleFileNameW),
      HookRow<decltype(GetModuleHandleExW)>("GetModuleHandleExW", &HookGetModuleHandleExW),
  };
  return kRows;
}

}  // namespace wb
