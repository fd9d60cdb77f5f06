// Names of simplified representations. What they leave out: random_structure_test.cpp.
#include "assembly/components/sim_rep_rules.h"

#include <gtest/gtest.h>

#include <set>

namespace qm {
namespace {

TEST(SimplifiedRep, HasTheFirstFreeNumberInItsName) {
  const std::set<std::wstring> taken = {L"QM_REP_1", L"QM_REP_2", L"QM_REP_4"};
  EXPECT_EQ(FreeRepName([&](const std::wstring& name) { return taken.contains(name); }),
            L"QM_REP_3");
  int asked = 0;
  EXPECT_EQ(FreeRepName([&](const std::wstring&) { return ++asked > 0; }), std::nullopt);
  EXPECT_EQ(asked, 1000);
}

}  // namespace
}  // namespace qm
