// Names of exported files.
#include "export/drawings/export_name_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

using Texts = std::vector<std::optional<std::wstring>>;

TEST(ExportName, TokensLoseBlanksAndEmptyPiecesAndKeepTheirOrder) {
  const NamingRule rule = NamingRuleOf(L"图纸名称，sheet size, ,,材 料,Sheetsize", L"_");
  EXPECT_EQ(rule.tokens, (std::vector<NameToken>{NameToken::kName, NameToken::kSheetSize,
                                                 NameToken::kParameter, NameToken::kParameter}));
  EXPECT_EQ(rule.parameters, (std::vector<std::wstring>{L"材料", L"Sheetsize"}));
  EXPECT_TRUE(NamingRuleOf(L" ，,", L"").tokens.empty());
}

TEST(ExportName, AnEmptySeparatorIsASpaceAndNullIsNone) {
  const auto joined = [](const wchar_t* separator) {
    return FileName(NamingRuleOf(L"图纸名称,sheetsize", separator), {L"A3", L"a-100", {}});
  };
  EXPECT_EQ(joined(L""), L"a-100 A3");
  EXPECT_EQ(joined(L"NULL"), L"a-100A3");
  EXPECT_EQ(joined(L"_"), L"a-100_A3");
  EXPECT_EQ(joined(L" - "), L"a-100 - A3");
  EXPECT_EQ(joined(L"null"), L"a-100nullA3");
}

TEST(ExportName, WhatIsMissingAddsNothingAndAnEmptyTextAddsTheSeparator) {
  const NamingRule rule = NamingRuleOf(L"P,图纸名称,Q,sheetsize,R", L"_");
  const auto name = [&](std::optional<std::wstring> size, const Texts& parameters) {
    return FileName(rule, {std::move(size), L"a", parameters});
  };
  EXPECT_EQ(name(L"A3", {L"1", L"2", L"3"}), L"1_a_2_A3_3");
  EXPECT_EQ(name(std::nullopt, {std::nullopt, L"2", std::nullopt}), L"a_2");
  EXPECT_EQ(name(L"", {L"", std::nullopt, L""}), L"_a__");
  EXPECT_EQ(FileName(NamingRuleOf(L"P", L"_"), {{}, {}, {std::nullopt}}), L"");
  EXPECT_EQ(FileName(NamingRuleOf(L"P", L"_"), {{}, {}, {L""}}), L"");
  EXPECT_EQ(FileName(NamingRuleOf(L"", L"_"), {}), L"");
}

}  // namespace
}  // namespace qm
