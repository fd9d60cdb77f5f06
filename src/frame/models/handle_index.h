// Numbers for handles, in the order in which they are first met: what a batch over many components
// looks up each time, so it neither searches nor allocates for each handle.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace qm {

class HandleIndex {
 public:
  // The number of `handle`, counted from 0, and whether it is new.
  std::pair<uint32_t, bool> Insert(const void* handle) {
    if (handles_.size() * 2 >= slots_.size()) Grow();
    uint32_t& slot = slots_[SlotOf(handle)];
    const bool is_new = slot == kEmpty;
    if (is_new) {
      slot = static_cast<uint32_t>(handles_.size());
      handles_.push_back(handle);
    }
    return {slot, is_new};
  }

 private:
  static constexpr uint32_t kEmpty = UINT32_MAX;

  // Where `handle` stands or would stand. Handles differ in few bits, often the low ones, so they
  // are spread by a multiplication whose upper half is used.
  size_t SlotOf(const void* handle) const {
    const uint64_t spread = reinterpret_cast<uintptr_t>(handle) * UINT64_C(0x9E3779B97F4A7C15);
    const size_t mask = slots_.size() - 1;
    size_t at = static_cast<size_t>(spread >> 32) & mask;
    while (slots_[at] != kEmpty && handles_[slots_[at]] != handle) at = (at + 1) & mask;
    return at;
  }

  // The number of slots stays a power of two.
  void Grow() {
    slots_.assign(slots_.empty() ? 16 : slots_.size() * 2, kEmpty);
    for (uint32_t i = 0; i < handles_.size(); ++i) slots_[SlotOf(handles_[i])] = i;
  }

  std::vector<const void*> handles_;
  std::vector<uint32_t> slots_;
};

}  // namespace qm
