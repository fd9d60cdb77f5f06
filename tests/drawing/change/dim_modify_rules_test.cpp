// The text of a dimension where it has no room.
#include "drawing/change/dim_modify_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace qm {
namespace {

// What each button makes of a dimension is read off it in dim_modify_world_test.cpp.
TEST(DimModifyRules, ATextWithoutRoomIsNeverCut) {
  const auto evenly = std::ranges::find_if(DimButtons(), [](const DimButton& button) {
    return std::string_view(button.button) == "sufBt1";
  });
  ASSERT_NE(evenly, DimButtons().end());
  EXPECT_EQ(NewDimLine(*evenly, {}, std::wstring(77, L'a')), std::wstring(77, L'a') + L"EQS");
  EXPECT_EQ(NewDimLine(*evenly, {}, std::wstring(78, L'a')), std::nullopt);
}

}  // namespace
}  // namespace qm
