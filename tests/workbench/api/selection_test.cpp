// Selections, and how long they last.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, SelectionsAreTheCallersUntilFreed) {
  host_.session.selection_buffer.push_back({PRO_FEATURE, 7, box_, box_, {}});
  host_.session.selection_buffer.push_back({PRO_FEATURE, 8, nullptr, nullptr, {}});
  ProSelection* picked = nullptr;
  ProModelitem item{};
  ProAsmcomppath path{};
  ASSERT_EQ(ProSelbufferSelectionsGet(&picked), PRO_TK_NO_ERROR);
  const ProSelection first = picked[0];
  const ProSelection second = picked[1];
  Check({
      {"an item", [&] { return ProSelectionModelitemGet(first, &item); }, PRO_TK_NO_ERROR},
      {"of nothing", [&] { return ProSelectionModelitemGet(second, &item); }, PRO_TK_INVALID_ITEM},
      {"a way to nothing", [&] { return ProSelectionAsmcomppathGet(second, &path); },
       PRO_TK_INVALID_ITEM},
      {"freed", [&] { return ProSelectionarrayFree(picked); }, PRO_TK_NO_ERROR},
      {"after that", [&] { return ProSelectionModelitemGet(first, &item); }, PRO_TK_BAD_INPUTS,
       "ProSelectionModelitemGet: stale selection handle (its object is gone)"},
      {"again", [&] { return ProSelectionarrayFree(picked); }, PRO_TK_BAD_INPUTS,
       "ProSelectionarrayFree: array used after it was freed"},
      {"cleared", [&] { return ProSelbufferClear(); }, PRO_TK_NO_ERROR},
      {"empty", [&] { return ProSelbufferSelectionsGet(&picked); }, PRO_TK_E_NOT_FOUND},
  });
  EXPECT_EQ(item.id, 7);
}

}  // namespace
}  // namespace wb
