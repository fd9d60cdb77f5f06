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
  EXPECT_EQ(Of(std::wstring(31, L'a')), NewName::kToBeTried);
  EXPECT_EQ(Of(std::wstring(32, L'a')), NewName::kIllegal);
  EXPECT_EQ(Of(std::wstring(33, L'a')), NewName::kTooLong);
  EXPECT_EQ(Of(std::wstring(32, L'螺')), NewName::kIllegal);
  EXPECT_EQ(Of(std::wstring(33, L'螺')), NewName::kTooLong);
}

TEST(NewNameRules, TheSameNameIsNoNewOneButAnotherCaseIs) {
  EXPECT_EQ(Of(L"bolt"), NewName::kUnchanged);
  EXPECT_EQ(Of(L""), NewName::kUnchanged);
  EXPECT_EQ(Of(L"Bolt"), NewName::kToBeTried);
  EXPECT_EQ(Of(L"bolt", L"drw"), NewName::kUnchanged);
}

TEST(NewNameRules, ARowOfNeitherTypeIsIllegalHoweverItsTypeIsWritten) {
  for (const wchar_t* type : {L"", L"drw", L"PRT", L"prt ", L"asm."}) {
    EXPECT_EQ(Of(L"screw", type), NewName::kIllegal);
  }
  EXPECT_EQ(Of(L"screw", L"asm"), NewName::kToBeTried);
}

TEST(NewNameRules, WhatWouldNameSomethingElseIsNeverAskedFor) {
  for (const wchar_t* name :
       {L"a\\b", L"a/b", L"c:a", L"a*", L"a?", L"a<b>", L"a|b", L"a\"b", L"a\tb", L"a\nb"}) {
    EXPECT_EQ(Of(name), NewName::kIllegal) << static_cast<int>(name[1]);
  }
  // What the host thinks of these shows when they are tried.
  for (const wchar_t* name : {L"a.b", L"a b", L"-a", L"螺栓"}) {
    EXPECT_EQ(Of(name), NewName::kToBeTried);
  }
}

TEST(NewNameRules, OneNameForTwoModelsOfATypeIsTakenWhateverItsCase) {
  AskedNames asked;
  const auto ask = [&](const wchar_t* type, const wchar_t* name) {
    return asked.Add({L"1", L"old", type, name});
  };
  EXPECT_TRUE(ask(L"prt", L"Screw"));
  EXPECT_TRUE(ask(L"asm", L"screw"));
  EXPECT_FALSE(ask(L"prt", L"SCREW"));
  EXPECT_TRUE(ask(L"prt", L"screw2"));
}

TEST(NewNameRules, RowsThatAreReadAgainAreJudgedAgain) {
  const auto refusal = [](std::vector<RenameRow> rows) {
    return RefusalAtRename(rows).value_or(L"");
  };
  const RenameRow good = {L"1", L"bolt", L"prt", L"screw"};
  EXPECT_EQ(refusal({good, {L"2", L"nut", L"drw", L"nut"}, {L"3", L"pin", L"asm", L"screw"}}), L"");
  EXPECT_EQ(refusal({good, {L"2", L"nut", L"drw", L"nut_2"}}), IllegalRefusal(L"nut_2"));
  EXPECT_EQ(refusal({good, {L"2", L"nut", L"prt", L"a*"}}), IllegalRefusal(L"a*"));
  EXPECT_EQ(refusal({good, {L"2", L"nut", L"prt", L"Screw"}}), TakenRefusal(L"Screw"));
  const std::wstring long_name(33, L'x');
  EXPECT_EQ(refusal({{L"1", L"bolt", L"prt", long_name}, {L"2", L"nut", L"prt", L"a*"}}),
            TooLongAtRename(long_name));
}

TEST(MovedNameRules, ARowOfANameThatIsGoneOrNewMeansAnotherModel) {
  MovedNames moved;
  moved.Add({L"1", L"bolt", L"prt", L"Mid"});
  const auto holds = [&](const wchar_t* type, const wchar_t* old_name) {
    return moved.HoldOldNameOf({L"2", old_name, type, L"last"});
  };
  EXPECT_TRUE(holds(L"prt", L"mid"));
  EXPECT_TRUE(holds(L"prt", L"BOLT"));
  EXPECT_FALSE(holds(L"asm", L"mid"));
  EXPECT_FALSE(holds(L"prt", L"last"));
}

TEST(NewNameRules, OnlyBlanksAroundANameGo) {
  EXPECT_EQ(Trimmed(L"  a b "), L"a b");
  EXPECT_EQ(Trimmed(L"\ta"), L"\ta");
  EXPECT_EQ(Trimmed(L"   "), L"");
}

TEST(WorkbookRows, BeginBelowTitleAndLabels) {
  const auto rows = RowsOfWorkbook({{L"pump 重命名", L"", L"", L""},
                                    {L"序号", L"原名称", L"类型", L"新名称"},
                                    {L"1", L"1001", L"prt", L"1002"},
                                    {L"", L"", L"", L""}});
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].old_name, L"1001");
  EXPECT_EQ(rows[0].new_name, L"1002");
  EXPECT_EQ(rows[1].number, L"");
  EXPECT_TRUE(RowsOfWorkbook({{L"pump"}, {L"a"}}).empty());
}

}  // namespace
}  // namespace qm
