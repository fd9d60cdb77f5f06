// What becomes of a field that shows something else than its setting.
#include "frame/dialogs/filling_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

const std::wstring kBlank;
const Filling kShown = {L"gb,iso", FillResult::kTaken, L"gb,iso"};

TEST(FilledField, IsTheUsersOnceItHasShownItsSetting) {
  EXPECT_TRUE(MaySave(kShown, L"gb,iso"));
  EXPECT_TRUE(MaySave(kShown, L""));
  // The host took the value and does not tell what the field shows.
  EXPECT_TRUE(MaySave({L"gb", FillResult::kTaken, std::nullopt}, L""));
  // It refused a value that the field had already.
  EXPECT_TRUE(MaySave({L"1", FillResult::kFailed, L"1"}, L"1"));
}

TEST(FilledField, ThatDoesNotShowItsSettingIsNeitherSavedNorUsed) {
  const Filling cases[] = {
      {L"gb,iso", FillResult::kFailed, kBlank},
      {L"gb,iso", FillResult::kTaken, kBlank},  // a success that was none
      {L"gb,iso", FillResult::kFailed, std::nullopt},
      {std::nullopt, FillResult::kFailed, kBlank},  // the setting could not be read
      {std::nullopt, FillResult::kFailed, std::nullopt},
  };
  for (const Filling& filling : cases) {
    EXPECT_FALSE(MaySave(filling, L"")) << (&filling - cases);
    EXPECT_FALSE(MayUse(filling, L"")) << (&filling - cases);
  }
}

TEST(FilledField, IsTheUsersWhenHeHasChangedItSince) {
  EXPECT_TRUE(MaySave({L"gb", FillResult::kFailed, kBlank}, L"din"));
  EXPECT_TRUE(MaySave({std::nullopt, FillResult::kFailed, kBlank}, L"din"));
  EXPECT_FALSE(MaySave({L"gb", FillResult::kFailed, std::nullopt}, L"din"));
}

TEST(FilledField, WithoutASettingIsTheUsersFromTheStart) {
  EXPECT_TRUE(MaySave({kBlank, FillResult::kUnknownValue, L"1"}, L"1"));
  EXPECT_TRUE(MaySave({kBlank, FillResult::kFailed, std::nullopt}, L""));
}

// The host presses the first button of a group when it is given the name of none.
TEST(FilledField, ThatHasNoSuchValueIsUsedAsItStandsButNotSaved) {
  const Filling filling = {L"BYCOMP", FillResult::kUnknownValue, L"byComp"};
  EXPECT_TRUE(MayUse(filling, L"byComp"));
  EXPECT_FALSE(MaySave(filling, L"byComp"));
  EXPECT_TRUE(MaySave(filling, L"byAsm"));
}

}  // namespace
}  // namespace qm
