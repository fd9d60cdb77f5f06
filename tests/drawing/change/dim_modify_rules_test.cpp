// The text of a dimension where it has no room, and the macro of the single dimension.
#include "drawing/change/dim_modify_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "drawing/change/single_dim_rules.h"

namespace qm {
namespace {

// What each button makes of a dimension is read off it in dim_modify_world_test.cpp.
TEST(DimModifyRules, ATextWithoutRoomIsNeverCut) {
  const auto evenly = std::ranges::find(DimButtons(), "sufBt1", &DimButton::button);
  ASSERT_NE(evenly, DimButtons().end());
  EXPECT_EQ(NewDimLine(*evenly, {}, std::wstring(77, L'a')), std::wstring(77, L'a') + L"EQS");
  EXPECT_EQ(NewDimLine(*evenly, {}, std::wstring(78, L'a')), std::nullopt);
}

TEST(SingleDimRules, OnlyALineThatBeginsWithTheSignIsAComment) {
  EXPECT_EQ(MacroOf(L"# 说明\r\n~ Command `A` ;\r\n~ Activate `B`;\n#x\n"),
            L"~ Command `A` ;~ Activate `B`;");
  EXPECT_EQ(MacroOf(L" #1"), L" #1");
}

}  // namespace
}  // namespace qm
