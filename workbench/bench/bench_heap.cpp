// Puts counting stand-ins into the plug-in's imports of the heap functions.
#include "workbench/bench/bench_heap.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <unordered_map>

#include "workbench/base/windows_headers.h"
#include "workbench/host/windows_calls.h"
#include "workbench/windows/windows_hooks.h"

#include <psapi.h>

namespace wb {
namespace {

struct Tally {
  std::unordered_map<void*, size_t> blocks;
  long long live = 0;
  long long peak = 0;
};
Tally tally;

void* Counted(void* block, size_t size) {
  if (block == nullptr) return nullptr;
  tally.blocks[block] = size;
  tally.live += static_cast<long long>(size);
  tally.peak = std::max(tally.peak, tally.live);
  return block;
}

void Discount(void* block) {
  const auto found = tally.blocks.find(block);
  if (found == tally.blocks.end()) return;
  tally.live -= static_cast<long long>(found->second);
  tally.blocks.erase(found);
}

void* CountingMalloc(size_t size) {
  return Counted(std::malloc(size), size);
}

void* CountingCalloc(size_t count, size_t size) {
  return Counted(std::calloc(count, size), count * size);
}

void* CountingRealloc(void* block, size_t size) {
  // A block that could not grow drops out of the count, which nothing here depends on.
  Discount(block);
  return Counted(std::realloc(block, size), size);
}

void CountingFree(void* block) {
  Discount(block);
  std::free(block);
}

constexpr const char* kHeapLibrary = "msvcrt.dll";

std::span<const Hook> CountingHooks() {
  static const Hook kHooks[] = {
      {"malloc", reinterpret_cast<void*>(&CountingMalloc)},
      {"calloc", reinterpret_cast<void*>(&CountingCalloc)},
      {"realloc", reinterpret_cast<void*>(&CountingRealloc)},
      {"free", reinterpret_cast<void*>(&CountingFree)},
  };
  return kHooks;
}

void PutBack(void* module) {
  const HMODULE library = ::GetModuleHandleA(kHeapLibrary);
  std::vector<Hook> originals;
  for (const Hook& hook : CountingHooks()) {
    originals.push_back({hook.name, reinterpret_cast<void*>(::GetProcAddress(library, hook.name))});
  }
  InterceptImports(module, originals);
}

}  // namespace

HeapWatch::HeapWatch(void* module) : module_(module) {
  tally = Tally();
  const auto replaced = InterceptImports(module, CountingHooks()).replaced;
  for (const char* needed : {"malloc", "free"}) {
    if (std::find(replaced.begin(), replaced.end(), needed) != replaced.end()) continue;
    PutBack(module);
    throw std::runtime_error(
        std::string("the plug-in's heap cannot be watched: it does not import ") + needed);
  }
}

HeapWatch::~HeapWatch() {
  PutBack(module_);
  tally = Tally();
}

long long HeapWatch::peak() const {
  return tally.peak;
}

long long HeapWatch::live() const {
  return tally.live;
}

long long PeakOfProcess() {
  PROCESS_MEMORY_COUNTERS counters = {};
  ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
  return static_cast<long long>(counters.PeakWorkingSetSize);
}

}  // namespace wb
