// Counts what a loaded plug-in has allocated, exactly: its own calls of the C run-time's heap.
#pragma once

namespace wb {

// Watches from construction on; one at a time. Blocks allocated before and freed meanwhile do not
// count.
class HeapWatch {
 public:
  // `module` is the plug-in's HMODULE. Throws std::runtime_error when its heap cannot be watched.
  explicit HeapWatch(void* module);
  ~HeapWatch();
  HeapWatch(const HeapWatch&) = delete;
  HeapWatch& operator=(const HeapWatch&) = delete;

  // The most that was in use at one time, in bytes.
  long long peak() const;
  // What is in use now and was not when the watch began, in bytes.
  long long live() const;

 private:
  void* module_;
};

// The process' own peak of memory in use, in bytes; never goes down.
long long PeakOfProcess();

}  // namespace wb
