// Bills of materials from small structures, and from one that is as deep as any host allows.
#include "export/bill/bill_rules.h"

#include <gtest/gtest.h>

#include <ostream>

namespace qm {
namespace {

// A row as a user reads it.
struct BillLine {
  std::string position;
  std::string name;
  int level;
  int64_t quantity;
  bool operator==(const BillLine&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const BillLine& line) {
    return out << line.position << ' ' << line.name << " level " << line.level << " x "
               << line.quantity;
  }
};

std::string Narrow(const std::wstring& text) {
  return std::string(text.begin(), text.end());
}

// Occurrences as a walk through all levels meets them.
void Occur(BillStructure& structure, uint32_t assembly) {
  for (const uint32_t component : structure.models[assembly].components) {
    structure.occurrences.push_back(component);
    Occur(structure, component);
  }
}

// PUMP: 3 bolts, 2 housings (each with 2 bolts and a lid), 1 lid.
BillStructure Pump() {
  BillStructure pump;
  pump.models = {{L"PUMP", PRO_MDL_ASSEMBLY, {1, 2, 1, 3, 2, 1}},
                 {L"BOLT", PRO_MDL_PART, {}},
                 {L"HOUSING", PRO_MDL_ASSEMBLY, {1, 1, 3}},
                 {L"LID", PRO_MDL_PART, {}}};
  Occur(pump, 0);
  return pump;
}

std::vector<BillLine> LinesOfRows(const BillStructure& structure,
                                  const std::vector<BillRow>& rows) {
  std::vector<BillLine> lines;
  PositionNumber position;
  for (const BillRow& row : rows) {
    lines.push_back({Narrow(position.Of(row)), Narrow(structure.models[row.model].name), row.level,
                     row.quantity});
  }
  return lines;
}

std::vector<BillLine> LevelLines(const BillStructure& structure, int depth) {
  return LinesOfRows(structure, LevelBill(structure, depth));
}

std::vector<std::pair<std::string, int64_t>> Totals(const BillStructure& structure) {
  std::vector<std::pair<std::string, int64_t>> totals;
  for (const BillRow& row : SummaryBill(structure)) {
    totals.emplace_back(Narrow(structure.models[row.model].name), row.quantity);
  }
  return totals;
}

using TotalList = std::vector<std::pair<std::string, int64_t>>;

TEST(SummaryBill, CountsEachModelOnAllLevelsInTheOrderOfAppearance) {
  EXPECT_EQ(Totals(Pump()), (TotalList{{"BOLT", 7}, {"HOUSING", 2}, {"LID", 3}}));
  EXPECT_EQ(Totals({}), TotalList{});
}

TEST(SummaryBill, APartAndAnAssemblyOfOneNameAreTwoRows) {
  BillStructure structure;
  structure.models = {{L"TOP", PRO_MDL_ASSEMBLY, {1, 2, 1}},
                      {L"FRAME", PRO_MDL_PART, {}},
                      {L"FRAME", PRO_MDL_ASSEMBLY, {3}},
                      {L"FRAME", PRO_MDL_PART, {}}};
  Occur(structure, 0);
  EXPECT_EQ(Totals(structure), (TotalList{{"FRAME", 3}, {"FRAME", 1}}));
  EXPECT_EQ(SummaryBill(structure)[1].model, 2u);
}

TEST(SummaryBill, AModelWithoutNameIsLeftOutButNotItsComponents) {
  BillStructure structure = Pump();
  structure.models[2].name.clear();
  EXPECT_EQ(Totals(structure), (TotalList{{"BOLT", 7}, {"LID", 3}}));
}

TEST(LevelBill, ListsTheLevelsDownToTheDepth) {
  const BillStructure pump = Pump();
  const std::vector<BillLine> top = {
      {"1", "BOLT", 1, 3}, {"2", "HOUSING", 1, 2}, {"3", "LID", 1, 1}};
  const std::vector<BillLine> all = {{"1", "BOLT", 1, 3},
                                     {"2", "HOUSING", 1, 2},
                                     {"2.1", "BOLT", 2, 2},
                                     {"2.2", "LID", 2, 1},
                                     {"3", "LID", 1, 1}};
  EXPECT_EQ(LevelLines(pump, 0), std::vector<BillLine>{});
  EXPECT_EQ(LevelLines(pump, 1), top);
  EXPECT_EQ(LevelLines(pump, 2), all);
  EXPECT_EQ(LevelLines(pump, kAllLevels), all);
}

TEST(LevelBill, AnAssemblyStandsWithItsComponentsUnderEachParent) {
  BillStructure structure;
  structure.models = {{L"TOP", PRO_MDL_ASSEMBLY, {1, 2}},
                      {L"LEFT", PRO_MDL_ASSEMBLY, {3}},
                      {L"RIGHT", PRO_MDL_ASSEMBLY, {4, 3, 3}},
                      {L"HINGE", PRO_MDL_ASSEMBLY, {4}},
                      {L"PIN", PRO_MDL_PART, {}}};
  EXPECT_EQ(LevelLines(structure, 9), (std::vector<BillLine>{{"1", "LEFT", 1, 1},
                                                             {"1.1", "HINGE", 2, 1},
                                                             {"1.1.1", "PIN", 3, 1},
                                                             {"2", "RIGHT", 1, 1},
                                                             {"2.1", "PIN", 2, 1},
                                                             {"2.2", "HINGE", 2, 2},
                                                             {"2.2.1", "PIN", 3, 1}}));
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
  EXPECT_EQ(LevelLines(structure, kAllLevels), (std::vector<BillLine>{{"1", "FRAME", 1, 3},
                                                                      {"1.1", "BAR", 2, 1},
                                                                      {"2", "BOX", 1, 1},
                                                                      {"2.1", "FRAME", 2, 1},
                                                                      {"2.1.1", "BAR", 3, 1}}));
  const std::vector<BillRow> rows = LevelBill(structure, 2);
  EXPECT_EQ(structure.models[rows[0].model].type, PRO_MDL_PART) << "shown as the first";
  EXPECT_EQ(structure.models[rows[3].model].type, PRO_MDL_ASSEMBLY);
}

TEST(LevelBill, ModelsWithoutNameKeepTheirPlacesAndWhatTheyHold) {
  BillStructure structure = Pump();
  structure.models[2].name.clear();
  structure.models[3].name.clear();
  EXPECT_EQ(LevelLines(structure, 2), (std::vector<BillLine>{{"1", "BOLT", 1, 3},
                                                             {"2", "", 1, 2},
                                                             {"2.1", "BOLT", 2, 2},
                                                             {"2.2", "", 2, 1},
                                                             {"3", "", 1, 1}}));
}

TEST(LevelBill, AnAssemblyInsideItselfIsListedButNotEntered) {
  BillStructure structure;
  structure.models = {{L"TOP", PRO_MDL_ASSEMBLY, {1}}, {L"RING", PRO_MDL_ASSEMBLY, {1, 0}}};
  EXPECT_EQ(
      LevelLines(structure, kAllLevels),
      (std::vector<BillLine>{{"1", "RING", 1, 1}, {"1.1", "RING", 2, 1}, {"1.2", "TOP", 2, 1}}));
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
