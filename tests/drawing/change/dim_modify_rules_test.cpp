// The dimension palette, and the macro of the single dimension.
#include "drawing/change/dim_modify_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "drawing/change/single_dim_rules.h"

namespace qm {
namespace {

const DimButton& Button(std::string_view name) {
  return *std::ranges::find(DimButtons(), name, &DimButton::button);
}

std::optional<std::wstring> Line(std::string_view button, const std::wstring& typed = {},
                                 const std::optional<std::wstring>& present = std::nullopt) {
  return NewDimLine(Button(button), typed, present);
}

// A letter of the host's symbol font in a text.
std::wstring Symbol(wchar_t letter) {
  std::wstring text(3, letter);
  text.front() = L'\x01';
  text.back() = L'\x02';
  return text;
}

TEST(DimModifyRules, FortyNineButtonsEachOnce) {
  std::set<std::string_view> names;
  for (const DimButton& button : DimButtons()) names.insert(button.button);
  EXPECT_EQ(names.size(), 49u);
}

TEST(DimModifyRules, APrefixIsTheWholeNewText) {
  const std::wstring value = L"@D";
  const std::wstring diameter = Symbol(L'n');
  EXPECT_EQ(Line("preBt1", {}, L"old"), L"R@D");
  EXPECT_EQ(Line("preBt2"), diameter + value);
  EXPECT_EQ(Line("preBt4"), L"S" + diameter + value);
  EXPECT_EQ(Line("preBt7"), L"(@D)");
  EXPECT_EQ(Line("preBt8"), (Symbol(L'o') + value));
  EXPECT_EQ(Line("preBt9"), (Symbol(L'w') + value));
  EXPECT_EQ(Line("preBt10"), (Symbol(L'v') + value));
}

TEST(DimModifyRules, QuantitySpacingAndDepthStandAroundThePresentText) {
  EXPECT_EQ(Line("preBt11", L"4", L"M@D"), L"4×M@D");
  EXPECT_EQ(Line("preBt11", L"4"), L"4×@D");
  EXPECT_EQ(Line("sufBt1", {}, L"4×@D"), L"4×@DEQS");
  EXPECT_EQ(Line("sufBt1"), L"@DEQS");
  EXPECT_EQ(Line("sufBt2", L"12", L"M@D"), (L"M@D" + Symbol(L'x') + L"12"));
  EXPECT_EQ(Line("sufBt1", {}, std::wstring(77, L'a')), std::wstring(77, L'a') + L"EQS");
  EXPECT_EQ(Line("sufBt1", {}, std::wstring(78, L'a')), std::nullopt);  // never cut
}

TEST(DimModifyRules, TolerancesKeepTheirThreeListsOfValues) {
  const auto values = [](DimChange change) {
    std::string text;
    for (const DimButton& button : DimButtons()) {
      if (button.change != change) continue;
      std::string number = std::to_string(button.value);
      number.erase(number.find_last_not_of('0') + 1);
      text += (number.ends_with('.') ? number.substr(0, number.size() - 1) : number) + " ";
    }
    return text;
  };
  EXPECT_EQ(values(DimChange::kUpper), "0.01 0.02 0.03 0.05 0.1 0.2 0.5 1 2 3 5 6 10 ");
  EXPECT_EQ(values(DimChange::kLower), "0.01 0.02 0.03 0.05 0.1 0.2 0.5 1 2 3 6 10 20 ");
  EXPECT_EQ(values(DimChange::kSymmetric), "0.01 0.02 0.03 0.05 0.1 0.2 0.3 0.5 1 2 ");
  EXPECT_EQ(ToleranceOf(Button("upTolBt13")).upper, 10);
  EXPECT_EQ(ToleranceOf(Button("upTolBt13")).lower, 0);
  EXPECT_EQ(ToleranceOf(Button("downTolBt13")).upper, 0);
  EXPECT_EQ(ToleranceOf(Button("downTolBt13")).lower, 20);
  EXPECT_EQ(ToleranceOf(Button("MirTolBt7")).upper, 0.3);
  EXPECT_EQ(ToleranceOf(Button("MirTolBt7")).lower, 0.3);
}

TEST(SingleDimRules, CommentLinesGoAndTheOthersJoin) {
  EXPECT_EQ(MacroOf(L"# 说明\r\n~ Command `A` ;\r\n~ Activate `B`;\n#x\n"),
            L"~ Command `A` ;~ Activate `B`;");
  EXPECT_EQ(MacroOf(L"#only\n"), L"");
  EXPECT_EQ(MacroOf(L""), L"");
  EXPECT_EQ(MacroOf(L" #1"), L" #1");  // the line does not begin with it
}

}  // namespace
}  // namespace qm
