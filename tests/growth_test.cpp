// How the commands grow with the assembly, as far as it does not depend on the machine's speed:
// calls, memory and depth. `workbench bench` measures the rest.
#include <gtest/gtest.h>

#include "tests/plugin_host.h"
#include "workbench/bench/bench_measure.h"
#include "workbench/bench/bench_report.h"

namespace wb {
namespace {

BenchResult MeasureOnce(const BenchShape& shape, int occurrences, bool with_most_asked) {
  return Measure({&shape, occurrences, 1, with_most_asked}, Installed().dll(), Installed().work());
}

// What one more component may cost: in an assembly of assemblies eight calls in the collection and
// three after it, which is also what names a branch that a representation leaves out; in an export
// four; in a bill of six columns also its model's facts and its row's cells, in the list of models
// to rename its name, its row, and the field in it.
long MostCallsOf(BenchPart part) {
  if (IsBill(part)) return 27;
  // Ten calls read and write the relations of a model, five find and set its units.
  if (part == BenchPart::kAddRelations) return 18;
  if (part == BenchPart::kSetUnits) return 13;
  // Four calls make the parameter of a model.
  if (part == BenchPart::kModelCount) return 12;
  // Two calls place a component, seven measure the one surface of a part.
  if (part == BenchPart::kBox) return 17;
  if (part == BenchPart::kExport) return 12;
  // What is below the top level is collected twice, and each component is hidden and shown; of a
  // part of the top level five calls read the selection instead.
  if (part == BenchPart::kIsolate) return 18;
  // Components are collected for the count and after OK; fifteen calls count and remove the one
  // constraint of each and put the fix constraint in its place.
  if (part == BenchPart::kRemoveConstraints) return 31;
  return part == BenchPart::kReadTable || part == BenchPart::kRenameList ? 18 : 11;
}

class Growth : public testing::TestWithParam<BenchShape> {};

TEST_P(Growth, HostCallsAreExactlyLinearInTheOccurrences) {
  std::map<BenchPart, std::vector<std::pair<long, long>>> calls;
  for (const int occurrences : {1000, 2000, 4000}) {
    for (const BenchRow& row : MeasureOnce(GetParam(), occurrences, false).rows) {
      calls[row.part].emplace_back(row.occurrences, row.calls);
    }
  }
  for (const auto& [part, name, command, same_work, is_press] : BenchParts()) {
    ASSERT_EQ(calls[part].size(), 3u) << name;
    EXPECT_TRUE(IsExactlyLinear(calls[part])) << name;
    EXPECT_LE(calls[part][2].second - calls[part][1].second, MostCallsOf(part) * 2000) << name;
  }
}

TEST_P(Growth, QmParamsAsksEachModelForEachFactOnce) {
  const BenchResult result = MeasureOnce(GetParam(), 100, true);
  EXPECT_FALSE(result.most_asked.empty());
  for (const MostAsked& row : result.most_asked) EXPECT_EQ(row.times, 1) << row.function;
}

TEST_P(Growth, ABillReadsEachParameterOfAModelOnce) {
  constexpr long kParameterColumns = 3;
  for (const BenchRow& row : MeasureOnce(GetParam(), 1000, false).rows) {
    if (!IsBill(row.part)) continue;
    EXPECT_GT(row.parameters, 0);
    const long facts = kParameterColumns * row.models;
    EXPECT_LE(row.parameters, facts) << BenchPartName(row.part);
    EXPECT_LE(row.calls, 4 * (row.walk_calls + facts)) << BenchPartName(row.part);
  }
}

// A row of a bill also holds its texts, a file of an export its path, a box the place of each
// component; the selection to isolate stands beside two lists, a representation's branches beside
// the levels.
long MostBytesOf(BenchPart part) {
  if (part == BenchPart::kExport) return 600;
  const bool has_texts =
      IsBill(part) || part == BenchPart::kReadTable || part == BenchPart::kRenameList;
  const bool has_more =
      part == BenchPart::kBox || part == BenchPart::kIsolate || part == BenchPart::kSimplify;
  return has_texts || has_more ? 450 : 300;
}

TEST_P(Growth, AComponentCostsAFewHundredBytes) {
  for (const BenchRow& row : MeasureOnce(GetParam(), 2000, false).rows) {
    if (row.part == BenchPart::kCollection) continue;
    EXPECT_GT(row.heap_bytes, 0) << BenchPartName(row.part);
    EXPECT_LT(row.heap_bytes, MostBytesOf(row.part) * 2000) << BenchPartName(row.part);
  }
}

std::string ShapeName(const testing::TestParamInfo<BenchShape>& row) {
  return row.param.name;
}

INSTANTIATE_TEST_SUITE_P(Shapes, Growth,
                         testing::ValuesIn(BenchShapes().begin(), BenchShapes().end()), ShapeName);

TEST(GrowthOfDepth, TenThousandLevelsPass) {
  const BenchResult result = MeasureOnce(*FindBenchShape("chain"), kDeepestChain, false);
  EXPECT_EQ(result.rows.size(), BenchParts().size());
}

// What one more drawing may cost, of three views and two tables on two sheets, which is exported to
// ten files; or one more component that has such a drawing.
long MostCallsOfFolder(const std::string& command) {
  if (command == "QmExport") return 100;
  // The dialog lists the folder first, in which there are four drawings for each component.
  if (command == "QmExport list") return 80;
  // The list of models is filled and read twice; each new name is tried before the model and its
  // drawing get it and are saved.
  if (command == "QmRename") return 80;
  const bool is_drawings = command == "QmDrwScaleCheck" || command == "QmFrmReplace";
  // Seven calls of the collection, which QmExIgs makes twice, and what writes two files at most.
  return is_drawings ? 40 : 22;
}

// An export tells each drawing, and at the end how many files there are when some are missing; of
// components it tells each file.
long NotesOfFolder(const FolderRow& row) {
  if (row.command == "QmExport") return row.drawings + 1;
  if (row.command == "QmExIgs" || row.command == "QmExSat") return row.drawings;
  // Where it is recorded, and that assemblies are to be saved.
  if (row.command == "QmRename") return 2;
  return row.command == "QmExport list" || row.command == "QmBackup" ? 0 : row.drawings / 20 - 1;
}

TEST(GrowthOfFolders, HostCallsAreExactlyLinearInTheDrawingsAndProgressIsTold) {
  std::map<std::string, std::vector<std::pair<long, long>>> calls;
  for (const int drawings : {60, 120, 240}) {
    for (const FolderRow& row : MeasureFolder(drawings, Installed().dll(), Installed().work())) {
      calls[row.command].emplace_back(row.drawings, row.calls);
      EXPECT_EQ(row.notes, NotesOfFolder(row)) << row.command;
    }
  }
  ASSERT_EQ(calls.size(), 8u);
  for (const auto& [command, points] : calls) {
    EXPECT_TRUE(IsExactlyLinear(points)) << command;
    const long more = points[1].first - points[0].first;
    EXPECT_LE(points[1].second - points[0].second, MostCallsOfFolder(command) * more) << command;
  }
}

TEST(GrowthReport, FitsTheExponentOfAPower) {
  EXPECT_NEAR(FittedExponent({{10, 30}, {100, 300}, {1000, 3000}}), 1, 1e-9);
  EXPECT_NEAR(FittedExponent({{4, 8}, {16, 64}}), 1.5, 1e-9);
  EXPECT_NEAR(FittedExponent({{1, 5}, {10, 5}, {100, 5}}), 0, 1e-9);
}

TEST(GrowthReport, OnlyPointsOnOneLineAreLinear) {
  EXPECT_TRUE(IsExactlyLinear({{100, 703}, {200, 1403}, {400, 2803}}));
  EXPECT_FALSE(IsExactlyLinear({{100, 703}, {200, 1403}, {400, 2804}}));
}

TEST(GrowthReport, HoldsEveryRowAndTellsWhichBoundIsMissed) {
  const BenchShape* const shape = FindBenchShape("flat");
  BenchResult result;
  for (const int size : {10000, 100000}) {
    result.rows.push_back({shape, BenchPart::kCollection, size, size, 7 * size, 7 * size, 0,
                           size * 1e-6, size * 1e-6, size * 1e-6, 1.6, 1.6, 0});
  }
  result.rows.push_back(
      {shape, BenchPart::kSummaryBill, 100, 100, 4001, 700, 301, 1, 1, 1, 1, 1, 0});
  result.most_asked = {{"ProMdlNameGet", 2}};
  for (const int size : {20, 40, 80}) result.folders.push_back({"QmFrmReplace", size, size * size});
  const std::string tables = BenchTables(result, false);
  EXPECT_NE(tables.find("flat   collection          100000  100000      700000           7.000"),
            std::string::npos)
      << tables;
  Lines missed;
  for (const BenchBound& bound : CheckBounds(result)) {
    if (!bound.kept) missed.push_back(bound.text + ": " + bound.found);
  }
  EXPECT_EQ(missed, (Lines{"host calls exactly linear in the drawings of a folder: QmFrmReplace "
                           "are not",
                           "QmParams asks each model for each fact once: ProMdlNameGet 2 times",
                           "QmBom reads each model's parameter once for each column: 301 readings "
                           "of 100 models (flat)",
                           "QmBom at most 4 host calls for each of the bare walk's and each fact: "
                           "4.00 at most (QmBom summary on flat, 100)",
                           "collection at most 1.5 times the bare walk: 1.60 at most (flat, "
                           "10000)"}));
}

}  // namespace
}  // namespace wb
