// When commands are greyed, by mode, and popup entries offered, by what is preselected.
#include "entry/access_rules.h"

#include <gtest/gtest.h>

#include <set>

#include "entry/popup_rules.h"

namespace qm {
namespace {

template <typename Accepts>
std::set<int> NumbersFrom0To200(Accepts accepts) {
  std::set<int> accepted;
  for (int number = 0; number <= 200; ++number) {
    if (accepts(number)) accepted.insert(number);
  }
  return accepted;
}

std::set<int> ModesOf(AccessRule rule) {
  return NumbersFrom0To200([rule](int mode) { return AllowsMode(rule, mode); });
}

TEST(AccessRules, EachRuleAllowsItsModesAndNoOther) {
  EXPECT_EQ(ModesOf(AccessRule::kAlways).size(), 201u);
  EXPECT_EQ(ModesOf(AccessRule::kAssemblyMode), (std::set<int>{5, 8}));
  EXPECT_EQ(ModesOf(AccessRule::kSolidMode), (std::set<int>{1, 2, 5, 8}));
  EXPECT_EQ(ModesOf(AccessRule::kPartOrAssemblyMode), (std::set<int>{1, 2, 5}));
  EXPECT_EQ(ModesOf(AccessRule::kDrawingMode), (std::set<int>{6}));
}

TEST(PopupRules, EntriesAreOfferedForTheirItemTypesAndNoOther) {
  EXPECT_EQ(NumbersFrom0To200(&DisplayEntriesOffered), (std::set<int>{1, 2}));
  EXPECT_EQ(NumbersFrom0To200(&NameEntriesOffered),
            (std::set<int>{1, 2, 5, 6, 25, 66, 71, 72, 176}));
}

}  // namespace
}  // namespace qm
