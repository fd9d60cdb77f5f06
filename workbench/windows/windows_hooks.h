// What stands in for the intercepted Windows functions, by family: each family's rows stand in a
// file of their own, beside the functions that take over.
#pragma once

#include <span>
#include <type_traits>

namespace wb {

struct Hook {
  const char* name;   // of the Windows function
  void* replacement;  // has its signature
  // Its calls are seen by traces, counts and faults.
  bool is_crossing = true;
};
using HookRows = std::span<const Hook>;

// A row of a family: the replacement must have the signature that Windows declares.
template <typename Function>
Hook HookRow(const char* name, std::type_identity_t<Function>* replacement,
             bool is_crossing = true) {
  return {name, reinterpret_cast<void*>(replacement), is_crossing};
}

// A new family is one line here, and its file.
#define WB_HOOK_FAMILIES(FAMILY) \
  FAMILY(ShellHooks)             \
  FAMILY(MouseHooks)             \
  FAMILY(TimeHooks)              \
  FAMILY(FolderHooks)            \
  FAMILY(ComHooks)               \
  FAMILY(FileDialogHooks)        \
  FAMILY(SettingsHooks)          \
  FAMILY(FileHooks)              \
  FAMILY(ClipboardHooks)         \
  FAMILY(ModuleHooks)            \
  FAMILY(HeapHooks)

#define WB_DECLARE_FAMILY(Family) HookRows Family();
WB_HOOK_FAMILIES(WB_DECLARE_FAMILY)
#undef WB_DECLARE_FAMILY

// All of them.
HookRows Hooks();

// Whether calls of this function can be met at all: the host offers it, or it is intercepted and
// its calls are seen.
bool IsMetFunction(const char* name);

// Replaces those imports of a loaded module (HMODULE) that are named in `hooks`.
struct Interception;
Interception InterceptImports(void* module, HookRows hooks);

}  // namespace wb
