// Level bills where names stand twice, and of a structure that is as deep as any host allows.
// Ordinary ones are those of imported_bill_test.
#include "export/bill/bill_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

// Rows as a user reads them: "2.1 BOLT x 2".
using BillTexts = std::vector<std::string>;

std::string Narrow(const std::wstring& text) {
  return std::string(text.begin(), text.end());
}

std::string TextOf(const BillStructure& structure, const BillRow& row) {
  return Narrow(structure.models[row.model].name) + " x " + std::to_string(row.quantity);
}

BillTexts LevelTexts(const BillStructure& structure, int depth) {
  BillTexts texts;
  PositionNumber position;
  for (const BillRow& row : LevelBill(structure, depth)) {
    texts.push_back(Narrow(position.Of(row)) + " " + TextOf(structure, row));
  }
  return texts;
}

// The host knows models by name and type, the level bill its siblings by name: they stay apart in
// the summary and under different parents only.
TEST(LevelBill, SiblingsOfOneNameAreOneRowWhateverTheirTypes) {
  BillStructure structure;
  structure.models = {{L"TOP", PRO_MDL_ASSEMBLY, {1, 2, 1, 3}},
                      {L"FRAME", PRO_MDL_PART, {}},
                      {L"FRAME", PRO_MDL_ASSEMBLY, {4}},
                      {L"BOX", PRO_MDL_ASSEMBLY, {2}},
                      {L"BAR", PRO_MDL_PART, {}}};
  EXPECT_EQ(LevelTexts(structure, kAllLevels), (BillTexts{"1 FRAME x 3", "1.1 BAR x 1", "2 BOX x 1",
                                                          "2.1 FRAME x 1", "2.1.1 BAR x 1"}));
  EXPECT_EQ(structure.models[LevelBill(structure, 1)[0].model].type, PRO_MDL_PART)
      << "shown as the first";
}

TEST(LevelBill, AnAssemblyInsideItselfIsListedButNotEntered) {
  BillStructure structure;
  structure.models = {{L"TOP", PRO_MDL_ASSEMBLY, {1}}, {L"RING", PRO_MDL_ASSEMBLY, {1, 0}}};
  EXPECT_EQ(LevelTexts(structure, kAllLevels),
            (BillTexts{"1 RING x 1", "1.1 RING x 1", "1.2 TOP x 1"}));
}

TEST(LevelBill, AllLevelsMeansAllOfTenThousand) {
  constexpr uint32_t kLevels = 10'000;
  BillStructure structure;
  for (uint32_t i = 0; i < kLevels; ++i) {
    structure.models.push_back({L"L" + std::to_wstring(i), PRO_MDL_ASSEMBLY, {i + 1}});
  }
  structure.models.push_back({L"END", PRO_MDL_PART, {}});
  const std::vector<BillRow> rows = LevelBill(structure, kAllLevels);
  ASSERT_EQ(rows.size(), kLevels);
  EXPECT_EQ(rows.back().level, static_cast<int>(kLevels));
  PositionNumber position;
  size_t length = 0;
  for (const BillRow& row : rows) length = position.Of(row).size();
  EXPECT_EQ(length, 2 * kLevels - 1);
  EXPECT_EQ(LevelBill(structure, 98).size(), 98u);
}

TEST(DepthOf, TakesTheNumberOrTheWordsOfTheMenu) {
  const struct {
    const wchar_t* option;
    int depth;
  } cases[] = {{L"1", 1}, {L"9", 9}, {L"99", kAllLevels}, {L"全部", kAllLevels},
               {L"", 0},  {L"x", 0}, {L"-1", 0},          {L"999999999999", 0}};
  for (const auto& c : cases) EXPECT_EQ(DepthOf(c.option), c.depth) << (&c - cases);
}

}  // namespace
}  // namespace qm
