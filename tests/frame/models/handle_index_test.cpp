// Numbers of handles.
#include "frame/models/handle_index.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

const void* Handle(uintptr_t bits) {
  return reinterpret_cast<const void*>(bits);
}

// In the order they are met, no handle among them: aligned addresses, running numbers, and handles
// that differ in their upper bits only.
TEST(HandleIndex, KeepsTheNumbersOfManyHandlesApart) {
  for (const uintptr_t step :
       {uintptr_t{1}, uintptr_t{64}, uintptr_t{1} << 16, uintptr_t{1} << 40}) {
    HandleIndex index;
    for (int round = 0; round < 2; ++round) {
      for (uint32_t i = 0; i < 20000; ++i) {
        ASSERT_EQ(index.Insert(Handle(step * i)), std::make_pair(i, round == 0)) << step;
      }
    }
  }
}

}  // namespace
}  // namespace qm
