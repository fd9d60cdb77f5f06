// Opaque handles given to the plug-in. A handle carries its kind and a generation, so that one used
// after its object has gone, one of the wrong kind and a foreign pointer are each told apart. What
// it stands for is an object that keeps its place, or a thing inside one, known by its id: never an
// address that a list may move.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace wb {

enum class HandleKind : uint8_t {
  kNone,
  kModel,
  kSelection,
  kSelectionEnv,
  kCommand,
  kSurface,
  kCsys,
  kConstraint,
  kElement,
  kValue,
  kView,
  kExportData,
  kPdfOptions,
  kBrepRepresentation,
  kRepData,
};
const char* HandleKindWord(HandleKind kind);

class HandleTable {
 public:
  // A handle of an object of its own.
  void* Give(HandleKind kind, void* object);
  // The handle of the thing `id` inside `object`: the same one each time.
  void* GiveInside(HandleKind kind, void* object, int id);
  // Ends a handle; later uses of it are stale.
  void End(const void* handle);
  // Ends the handle of one thing inside `object`, or those of all things inside it.
  void EndInside(HandleKind kind, const void* object, int id);
  void EndAllInside(const void* object);

  struct Found {
    void* object = nullptr;  // null: `why` says what is wrong with the handle
    int id = 0;              // of a thing inside it
    std::string why;
    bool stale = false;  // it was good once
  };
  Found Look(const void* handle, HandleKind wanted) const;
  // The object alone, for the calls that are many; null where Look has something to say.
  void* ObjectAt(const void* handle, HandleKind wanted) const;
  // Kind of a live handle, kNone otherwise; for descriptions.
  HandleKind KindOf(const void* handle, void** object) const;

 private:
  struct Slot {
    void* object = nullptr;
    int id = 0;
    HandleKind kind = HandleKind::kNone;
    uint16_t generation = 0;
  };
  const Slot* SlotOf(uint64_t bits) const;

  std::vector<Slot> slots_;
  std::vector<uint32_t> free_;
  // Handles of the things inside an object, by kind and id.
  using Inside = std::unordered_map<uint64_t, void*>;
  std::unordered_map<const void*, Inside> inside_;
};

}  // namespace wb
