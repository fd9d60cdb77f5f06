// The plug-in's own allocations, those of the C++ run-time inside it included: seen by faults on
// order, and otherwise the C run-time's.
#include <cstdlib>

#include "workbench/host/host.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

bool IsRefused() {
  return HasHost() && TheHost().OnUiThread() && TheHost().faults.StrikeAllocation();
}

void* HookMalloc(size_t size) {
  return IsRefused() ? nullptr : std::malloc(size);
}

void* HookCalloc(size_t count, size_t size) {
  return IsRefused() ? nullptr : std::calloc(count, size);
}

// A block that cannot grow stays as it was.
void* HookRealloc(void* block, size_t size) {
  return IsRefused() ? nullptr : std::realloc(block, size);
}

}  // namespace

HookRows HeapHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(std::malloc)>("malloc", &HookMalloc, false),
      HookRow<decltype(std::calloc)>("calloc", &HookCalloc, false),
      HookRow<decltype(std::realloc)>("realloc", &HookRealloc, false),
  };
  return kRows;
}

}  // namespace wb
