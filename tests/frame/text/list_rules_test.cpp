// Lists and settings as users write them.
#include "frame/text/list_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

using Names = std::vector<std::wstring>;

TEST(SplitNames, DropsSpacesAndEmptyPiecesAndTakesBothCommas) {
  const struct {
    const wchar_t* list;
    Names names;
  } cases[] = {
      {L"图纸名称，sheetsize ,, 材料", {L"图纸名称", L"sheetsize", L"材料"}},
      {L"", {}},
      {L" , ，", {}},
      {L"a b,c", {L"ab", L"c"}},
      {L"重量,", {L"重量"}},
      {L"b,a,b", {L"b", L"a", L"b"}},
      {L"a\tb", {L"a\tb"}},  // only spaces go
  };
  for (const auto& c : cases) EXPECT_EQ(SplitNames(c.list), c.names) << (&c - cases);
}

TEST(WithoutBlanks, DropsSpacesEverywhere) {
  EXPECT_EQ(WithoutBlanks(L"as UG "), L"asUG");
  EXPECT_EQ(WithoutBlanks(L"   "), L"");
}

}  // namespace
}  // namespace qm
