// Popup entries are offered by what is preselected.
#include "entry/popup_rules.h"

#include <gtest/gtest.h>

#include <set>

namespace qm {
namespace {

std::set<int> TypesFrom0To200(bool (*is_offered)(int type)) {
  std::set<int> offered;
  for (int type = 0; type <= 200; ++type) {
    if (is_offered(type)) offered.insert(type);
  }
  return offered;
}

TEST(PopupRules, EntriesAreOfferedForTheirItemTypesAndNoOther) {
  EXPECT_EQ(TypesFrom0To200(&DisplayEntriesOffered), (std::set<int>{1, 2}));
  EXPECT_EQ(TypesFrom0To200(&NameEntriesOffered), (std::set<int>{1, 2, 5, 6, 25, 66, 71, 72, 176}));
}

}  // namespace
}  // namespace qm
