// Arrays that the host keeps for its callers.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, ArraysGrowAndAreCheckedAtEveryUse) {
  ProArray numbers = nullptr;
  ProArray foreign = &numbers;
  int size = 0;
  int object = 4;
  Check({
      {"made", [&] { return ProArrayAlloc(0, sizeof(int), 1, &numbers); }, PRO_TK_NO_ERROR},
      {"appended", [&] { return ProArrayObjectAdd(&numbers, PRO_VALUE_UNUSED, 1, &object); },
       PRO_TK_NO_ERROR},
      {"at the start", [&] { return ProArrayObjectAdd(&numbers, 0, 1, &(object = 3)); },
       PRO_TK_NO_ERROR},
      {"beyond the end", [&] { return ProArrayObjectAdd(&numbers, 3, 1, &object); },
       PRO_TK_BAD_INPUTS, "ProArrayObjectAdd: index 3 outside the array"},
      {"of no size", [&] { return ProArrayAlloc(0, 0, 1, &foreign); }, PRO_TK_BAD_INPUTS,
       "ProArrayAlloc: sizes must be positive"},
      {"counted", [&] { return ProArraySizeGet(numbers, &size); }, PRO_TK_NO_ERROR},
  });
  EXPECT_EQ(size, 2);
  EXPECT_EQ(static_cast<int*>(numbers)[0], 3);
  EXPECT_EQ(static_cast<int*>(numbers)[1], 4);
  EXPECT_EQ(ProArrayFree(&numbers), PRO_TK_NO_ERROR);
  EXPECT_EQ(numbers, nullptr);
}

}  // namespace
}  // namespace wb
