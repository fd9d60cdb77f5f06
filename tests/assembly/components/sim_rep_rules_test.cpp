// What a simplified representation leaves out.
#include "assembly/components/sim_rep_rules.h"

#include <gtest/gtest.h>

#include <set>

namespace qm {
namespace {

// top: 1 pump(level 1), 2 base, 3 pump again; pump: 11 rotor (level 2), 12 cover; rotor: 21, 22.
const Levels kLevels = {
    {{1, 1}, {2, kNoLevel}, {3, 1}},
    {{11, 2}, {12, kNoLevel}},
    {{21, kNoLevel}, {22, kNoLevel}},
};

using Path = std::vector<int>;
std::set<Path> LeftOut(const std::vector<Path>& kept) {
  ComponentTree tree;
  for (const Path& path : kept) tree.Add(path);
  std::set<Path> left_out;
  for (LeftOutComponent& component : ComponentsToLeaveOut(tree, kLevels)) {
    component.path.push_back(component.id);
    left_out.insert(component.path);
  }
  return left_out;
}

TEST(SimplifiedRep, LeavesOutTheUppermostOfEachBranchThatIsNotKept) {
  const struct {
    std::vector<Path> kept;
    std::set<Path> left_out;
  } cases[] = {
      {{{1, 11, 22}}, {{2}, {3}, {1, 12}, {1, 11, 21}}},
      {{{1}}, {{2}, {3}}},
      {{{1, 11}, {3, 12}}, {{2}, {1, 12}, {3, 11}}},
      {{{1}, {1, 11, 21}}, {{2}, {3}}},  // within one that is kept whole
      {{{1, 11, 21}, {1}}, {{2}, {3}}},
      {{{2}}, {{1}, {3}}},
      {{{}}, {}},  // the top itself
      {{{9}}, {{1}, {2}, {3}}},
      {{{1}, {2}, {3}}, {}},
  };
  for (const auto& c : cases) EXPECT_EQ(LeftOut(c.kept), c.left_out) << (&c - cases);
}

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
