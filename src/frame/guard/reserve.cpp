// The reserve, and who may take from it. The linker hands every malloc, calloc, realloc and free of
// the plug-in, also those inside the run-time library, to the functions below. What the plug-in
// itself asks for goes through operator new, which takes nothing from the reserve and throws: so
// the reserve is there for the throwing.
#include "frame/guard/reserve.h"

#if defined(__MINGW32__)

#include <malloc.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>

extern "C" {
// The C run-time's own, under the names that the linker gives them.
void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* block, std::size_t size);
void __real_free(void* block);
void* __wrap_malloc(std::size_t size);
void* __wrap_calloc(std::size_t count, std::size_t size);
void* __wrap_realloc(void* block, std::size_t size);
void __wrap_free(void* block);
}

namespace qm {
namespace {

// The largest thing that the run-time asks for after it is loaded is a thread's state; an exception
// takes some 150 bytes.
constexpr std::size_t kSlotBytes = 1024;
constexpr std::size_t kSlots = 64;

struct Reserve {
  alignas(std::max_align_t) unsigned char bytes[kSlots][kSlotBytes];
  // Without a lock, which would need memory itself.
  std::atomic<bool> taken[kSlots];
  std::atomic<int> given;
};
constinit Reserve reserve = {};

void* TakeSlot(std::size_t size) {
  if (size > kSlotBytes) return nullptr;
  for (std::size_t slot = 0; slot < kSlots; ++slot) {
    if (reserve.taken[slot].exchange(true)) continue;
    ++reserve.given;
    return reserve.bytes[slot];
  }
  return nullptr;
}

bool IsSlot(const void* block) {
  const auto place = reinterpret_cast<std::uintptr_t>(block);
  const auto first = reinterpret_cast<std::uintptr_t>(&reserve.bytes);
  return place >= first && place < first + sizeof(reserve.bytes);
}

void GiveBack(const void* slot) {
  const auto offset =
      reinterpret_cast<std::uintptr_t>(slot) - reinterpret_cast<std::uintptr_t>(&reserve.bytes);
  reserve.taken[offset / kSlotBytes] = false;
}

// `block` gives way to `grown`, where there is one.
void* Moved(void* block, std::size_t held, void* grown) {
  if (grown == nullptr) return nullptr;
  std::memcpy(grown, block, held);
  __wrap_free(block);
  return grown;
}

}  // namespace

bool PrepareExceptions() noexcept {
  const int before = reserve.given;
  try {
    throw std::bad_alloc();
  } catch (const std::bad_alloc&) {
    // Only thrown to be thrown once.
  }
  return reserve.given == before;
}

}  // namespace qm

void* __wrap_malloc(std::size_t size) {
  void* const block = __real_malloc(size);
  return block != nullptr ? block : qm::TakeSlot(size);
}

void* __wrap_calloc(std::size_t count, std::size_t size) {
  void* const block = __real_calloc(count, size);
  if (block != nullptr || (size != 0 && count > qm::kSlotBytes / size)) return block;
  void* const slot = qm::TakeSlot(count * size);
  return slot != nullptr ? std::memset(slot, 0, qm::kSlotBytes) : nullptr;
}

void* __wrap_realloc(void* block, std::size_t size) {
  if (qm::IsSlot(block)) {
    if (size <= qm::kSlotBytes) return block;
    return qm::Moved(block, qm::kSlotBytes, __real_malloc(size));
  }
  void* const grown = __real_realloc(block, size);
  if (grown != nullptr || size == 0) return grown;
  if (block == nullptr) return qm::TakeSlot(size);
  const std::size_t held = ::_msize(block);
  // A block that shrinks stays as it is.
  return size <= held ? block : qm::Moved(block, held, qm::TakeSlot(size));
}

void __wrap_free(void* block) {
  if (qm::IsSlot(block)) {
    qm::GiveBack(block);
  } else {
    __real_free(block);
  }
}

void* operator new(std::size_t size) {
  void* const block = __real_malloc(size != 0 ? size : 1);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void operator delete(void* block) noexcept {
  __real_free(block);
}

void operator delete(void* block, std::size_t) noexcept {
  __real_free(block);
}

#else

namespace qm {

// Other compilers' run-times keep their own reserve.
bool PrepareExceptions() noexcept {
  return true;
}

}  // namespace qm

#endif
