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

struct KindRow {
  HandleKind kind;
  const char* word;
};
constexpr KindRow kKinds[] = {
    {HandleKind::kNone, "nothing"},
    {HandleKind::kModel, "model"},
    {HandleKind::kSelection, "selection"},
    {HandleKind::kSelectionEnv, "selection environment"},
    {HandleKind::kCommand, "command"},
    {HandleKind::kSurface, "surface"},
    {HandleKind::kCsys, "coordinate system"},
    {HandleKind::kConstraint, "constraint"},
    {HandleKind::kElement, "element"},
    {HandleKind::kValue, "value"},
    {HandleKind::kView, "view"},
    {HandleKind::kExportData, "export data"},
    {HandleKind::kPdfOptions, "PDF options"},
    {HandleKind::kBrepRepresentation, "boundary representation"},
    {HandleKind::kRepData, "data of a simplified representation"},
};

uint64_t KeyInside(HandleKind kind, int id) {
  return uint64_t{static_cast<uint8_t>(kind)} << 32 | static_cast<uint32_t>(id);
}

}  // namespace

const char* HandleKindWord(HandleKind kind) {
  for (const KindRow& row : kKinds) {
    if (row.kind == kind) return row.word;
  }
  return "unknown thing";
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
  entry.id = 0;
  entry.kind = kind;
  entry.generation = static_cast<uint16_t>((entry.generation + 1) & kGenerationMask);
  return reinterpret_cast<void*>(Encode(slot, kind, entry.generation));
}

void* HandleTable::GiveInside(HandleKind kind, void* object, int id) {
  auto [at, fresh] = inside_[object].try_emplace(KeyInside(kind, id), nullptr);
  if (fresh) {
    at->second = Give(kind, object);
    const auto bits = reinterpret_cast<uint64_t>(at->second);
    slots_[kSlotMask - static_cast<uint32_t>(bits & kSlotMask)].id = id;
  }
  return at->second;
}

void HandleTable::End(const void* handle) {
  const auto bits = reinterpret_cast<uint64_t>(handle);
  if (SlotOf(bits) == nullptr) return;
  const uint32_t slot = kSlotMask - static_cast<uint32_t>(bits & kSlotMask);
  slots_[slot].object = nullptr;
  free_.push_back(slot);
}

void HandleTable::EndInside(HandleKind kind, const void* object, int id) {
  const auto things = inside_.find(object);
  if (things == inside_.end()) return;
  const auto handle = things->second.find(KeyInside(kind, id));
  if (handle == things->second.end()) return;
  End(handle->second);
  things->second.erase(handle);
}

void HandleTable::EndAllInside(const void* object) {
  const auto things = inside_.find(object);
  if (things == inside_.end()) return;
  for (const auto& [key, handle] : things->second) End(handle);
  inside_.erase(things);
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
  if (handle == nullptr) return {nullptr, 0, "null " + word + " handle"};
  const auto bits = reinterpret_cast<uint64_t>(handle);
  if (!IsOurs(bits)) return {nullptr, 0, "foreign pointer given as a " + word + " handle"};
  if (KindBits(bits) != wanted) {
    return {nullptr, 0,
            "a " + std::string(HandleKindWord(KindBits(bits))) + " handle given as a " + word +
                " handle"};
  }
  const Slot* slot = SlotOf(bits);
  if (slot == nullptr) return {nullptr, 0, "stale " + word + " handle (its object is gone)", true};
  return {slot->object, slot->id, "", false};
}

void* HandleTable::ObjectAt(const void* handle, HandleKind wanted) const {
  const auto bits = reinterpret_cast<uint64_t>(handle);
  const Slot* const slot = KindBits(bits) == wanted ? SlotOf(bits) : nullptr;
  return slot == nullptr ? nullptr : slot->object;
}

HandleKind HandleTable::KindOf(const void* handle, void** object) const {
  const Slot* slot = SlotOf(reinterpret_cast<uint64_t>(handle));
  if (slot == nullptr) return HandleKind::kNone;
  *object = slot->object;
  return slot->kind;
}

}  // namespace wb
