// Handle values: bit 46 marks ours, then generation, kind and slot. They are never addresses, so a
// plug-in that looks behind one is stopped at once.
#include "workbench/checks/handles.h"

namespace wb {
namespace {

constexpr uint64_t kMark = uint64_t{1} << 46;
constexpr int kGenerationShift = 32;
constexpr uint64_t kGenerationMask = 0x3FFF;
constexpr int kKindShift = 24;
constexpr uint32_t kSlotMask = 0xFFFFFF;

// Slots count downwards in the value: later objects sort first, so that nobody relies on the order
// of loading being the order of handles.
uint64_t Encode(uint32_t slot, HandleKind kind, uint16_t generation) {
  return kMark | (uint64_t{generation} & kGenerationMask) << kGenerationShift |
         uint64_t{static_cast<uint8_t>(kind)} << kKindShift | (kSlotMask - slot);
}

HandleKind KindBits(uint64_t bits) {
  return static_cast<HandleKind>(bits >> kKindShift & 0xFF);
}

bool IsOurs(uint64_t bits) {
  return bits >> 46 == 1;
}

}  // namespace

const char* HandleKindWord(HandleKind kind) {
  constexpr const char* kWords[] = {"nothing", "model",  "selection", "selection environment",
                                    "surface", "command"};
  const auto index = static_cast<size_t>(kind);
  return index < std::size(kWords) ? kWords[index] : "unknown thing";
}

void* HandleTable::Give(HandleKind kind, void* object) {
  uint32_t slot;
  if (free_.empty()) {
    slot = static_cast<uint32_t>(slots_.size());
    slots_.emplace_back();
  } else {
    slot = free_.back();
    free_.pop_back();
  }
  Slot& entry = slots_[slot];
  entry.object = object;
  entry.kind = kind;
  entry.generation = static_cast<uint16_t>((entry.generation + 1) & kGenerationMask);
  return reinterpret_cast<void*>(Encode(slot, kind, entry.generation));
}

void HandleTable::End(void* handle) {
  const auto bits = reinterpret_cast<uint64_t>(handle);
  if (SlotOf(bits) == nullptr) return;
  const uint32_t slot = kSlotMask - static_cast<uint32_t>(bits & kSlotMask);
  slots_[slot].object = nullptr;
  free_.push_back(slot);
}

const HandleTable::Slot* HandleTable::SlotOf(uint64_t bits) const {
  if (!IsOurs(bits)) return nullptr;
  const uint32_t slot = kSlotMask - static_cast<uint32_t>(bits & kSlotMask);
  if (slot >= slots_.size()) return nullptr;
  const Slot& entry = slots_[slot];
  const bool same = entry.object != nullptr && entry.kind == KindBits(bits) &&
                    entry.generation == (bits >> kGenerationShift & kGenerationMask);
  return same ? &entry : nullptr;
}

HandleTable::Found HandleTable::Look(const void* handle, HandleKind wanted) const {
  const std::string word = HandleKindWord(wanted);
  if (handle == nullptr) return {nullptr, "null " + word + " handle"};
  const auto bits = reinterpret_cast<uint64_t>(handle);
  if (!IsOurs(bits)) return {nullptr, "foreign pointer given as a " + word + " handle"};
  if (KindBits(bits) != wanted) {
    return {nullptr, "a " + std::string(HandleKindWord(KindBits(bits))) + " handle given as a " +
                         word + " handle"};
  }
  const Slot* slot = SlotOf(bits);
  if (slot == nullptr) return {nullptr, "stale " + word + " handle (its object is gone)", true};
  return {slot->object, ""};
}

HandleKind HandleTable::KindOf(const void* handle, void** object) const {
  const Slot* slot = SlotOf(reinterpret_cast<uint64_t>(handle));
  if (slot == nullptr) return HandleKind::kNone;
  *object = slot->object;
  return slot->kind;
}

}  // namespace wb
