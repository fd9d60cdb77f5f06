// Which models are listed, and what a new name must be.
#include "export/rename/rename_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

TEST(RenameFilterRules, AListEndsAtItsFirstBlankAndFullWidthCommasAreCommas) {
  EXPECT_EQ(NormalisedFilter(L"gb，iso std"), L"gb,iso");
  EXPECT_EQ(NormalisedFilter(L" gb"), L"");
  EXPECT_EQ(NormalisedFilter(L"gb\u3000,\tiso"), L"gb\u3000,\tiso");
  EXPECT_EQ(NormalisedFilter(NormalisedFilter(L"a，b")), L"a,b");
}

TEST(RenameFilterRules, OnlyLettersOfAsciiAreFoldedAndOnlyBeginningsCount) {
  const PrefixFilter filter(L"gb,,Iso,ä,");
  EXPECT_TRUE(filter.Excludes(L"GB_5782"));
  EXPECT_TRUE(filter.Excludes(L"isolator"));
  EXPECT_TRUE(filter.Excludes(L"ä1"));
  EXPECT_FALSE(filter.Excludes(L"Ä1"));
  EXPECT_FALSE(filter.Excludes(L"my_gb"));
  EXPECT_FALSE(filter.Excludes(L"g"));
  EXPECT_FALSE(PrefixFilter(L",,").Excludes(L"anything"));
}

NewName Of(const std::wstring& new_name, const std::wstring& type = L"prt") {
  return Judge({L"1", L"bolt", type, new_name});
}

TEST(NewNameRules, LengthsAroundTheHostsLimit) {
  for (const wchar_t c : {L'a', L'螺'}) {
    EXPECT_EQ(Of(std::wstring(31, c)), NewName::kToBeTried);
    EXPECT_EQ(Of(std::wstring(32, c)), NewName::kIllegal);
    EXPECT_EQ(Of(std::wstring(33, c)), NewName::kTooLong);
  }
}

TEST(NewNameRules, TheSameNameIsNoNewOneButAnotherCaseIs) {
  EXPECT_EQ(Of(L"bolt", L"drw"), NewName::kUnchanged);
  EXPECT_EQ(Of(L""), NewName::kUnchanged);
  EXPECT_EQ(Of(L"Bolt"), NewName::kToBeTried);
}

TEST(NewNameRules, ARowOfNeitherTypeIsIllegalHoweverItsTypeIsWritten) {
  for (const wchar_t* type : {L"", L"drw", L"PRT", L"prt "}) {
    EXPECT_EQ(Of(L"screw", type), NewName::kIllegal);
  }
}

TEST(NewNameRules, WhatWouldNameSomethingElseIsNeverAskedFor) {
  for (const wchar_t* name :
       {L"a\\b", L"a/b", L"c:a", L"a*", L"a?", L"a<b>", L"a|b", L"a\"b", L"a\tb", L"a\nb"}) {
    EXPECT_EQ(Of(name), NewName::kIllegal) << static_cast<int>(name[1]);
  }
  // What the host thinks of these shows when they are tried.
  for (const wchar_t* name : {L"a.b", L"a b", L"-a"}) {
    EXPECT_EQ(Of(name), NewName::kToBeTried);
  }
}

TEST(NewNameRules, OnlyBlanksAroundANameGo) {
  EXPECT_EQ(Trimmed(L"  a b "), L"a b");
  EXPECT_EQ(Trimmed(L"\ta"), L"\ta");
  EXPECT_EQ(Trimmed(L"   "), L"");
}

}  // namespace
}  // namespace qm
