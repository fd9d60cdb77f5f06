// Opaque handles given to the plug-in. A handle carries its kind and a generation, so that one used
// after its object has gone, one of the wrong kind and a foreign pointer are each told apart.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace wb {

enum class HandleKind : uint8_t { kNone, kModel, kSelection, kSelectionEnv, kSurface, kCommand };
const char* HandleKindWord(HandleKind kind);

class HandleTable {
 public:
  void* Give(HandleKind kind, void* object);
  // Ends a handle; later uses of it are stale.
  void End(void* handle);

  struct Found {
    void* object = nullptr;  // null: `why` says what is wrong with the handle
    std::string why;
    bool stale = false;  // it was good once
  };
  Found Look(const void* handle, HandleKind wanted) const;
  // Kind of a live handle, kNone otherwise; for descriptions.
  HandleKind KindOf(const void* handle, void** object) const;

 private:
  struct Slot {
    void* object = nullptr;
    HandleKind kind = HandleKind::kNone;
    uint16_t generation = 0;
  };
  const Slot* SlotOf(uint64_t bits) const;

  std::vector<Slot> slots_;
  std::vector<uint32_t> free_;
};

}  // namespace wb
