// Workbooks in memory: what becomes of texts put into cells, formats, merges, widths.
#include "workbench/workbook/spreadsheet_model.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

TEST(SpreadsheetModel, AddressesAreReadAndWritten) {
  const struct {
    const char* text;
    CellPosition cell;
  } kCells[] = {{"A1", {1, 1}},
                {"AA10", {10, 27}},
                {"XFD1048576", {kSheetRows, kSheetColumns}},
                {"ZZ1", {1, 26 * 27}}};
  for (const auto& row : kCells) {
    EXPECT_EQ(ParseCellAddress(row.text), row.cell) << row.text;
    EXPECT_EQ(CellAddress(row.cell), row.text);
  }
  EXPECT_EQ(ParseCellAddress("$c$3"), (CellPosition{3, 3}));
  for (const char* wrong : {"", "A", "1", "A0", "A1048577", "XFE1", "A1B", "A99999999999"}) {
    EXPECT_EQ(ParseCellAddress(wrong), std::nullopt) << wrong;
  }
  EXPECT_EQ(AreaAddress(*ParseAreaAddress("B2")), "B2");
  EXPECT_EQ(ParseAreaAddress("C1:A2"), std::nullopt);
}

struct EnteredText {
  const char* text;
  CellValue general;  // in a cell without text format
};

TEST(SpreadsheetModel, ATextMayBecomeSomethingElseUnlessTheCellHasTextFormat) {
  const EnteredText kTexts[] = {
      {"bolt", "bolt"},     {"0012", 12.0},
      {" 12 ", 12.0},       {"12345678901234567890", 12345678901234567890.0},
      {"-1.5e3", -1500.0},  {"TRUE", true},
      {"-", "-"},           {"A-1", "A-1"},
      {"两\n行", "两\n行"}, {"", CellValue()},
  };
  for (const EnteredText& row : kTexts) {
    SCOPED_TRACE(row.text);
    Worksheet sheet;
    const CellArea plain = {{1, 1}, {1, 1}};
    const CellArea text = {{1, 2}, {1, 2}};
    sheet.ChangeFormat(text, [](CellFormat& format) { format.number_format = "@"; });
    EXPECT_EQ(sheet.EnterText(plain, row.text), Entered::kDone);
    EXPECT_EQ(sheet.ValueAt({1, 1}), row.general);
    EXPECT_EQ(sheet.EnterText(text, row.text), Entered::kDone);
    EXPECT_EQ(CellText(sheet.ValueAt({1, 2})), row.text);
  }
}

TEST(SpreadsheetModel, TextsThatTheProgramWouldNotKeepAreTold) {
  const struct {
    const char* text;
    Entered outcome;
  } kTexts[] = {{"=A1", Entered::kFormula},   {"-bolt", Entered::kFormula},
                {"@bolt", Entered::kFormula}, {"2024/5/1", Entered::kOther},
                {"50%", Entered::kOther},     {"1,000", Entered::kOther}};
  for (const auto& row : kTexts) {
    SCOPED_TRACE(row.text);
    Worksheet sheet;
    const CellArea cell = {{1, 1}, {1, 1}};
    EXPECT_EQ(sheet.EnterText(cell, row.text), row.outcome);
    EXPECT_EQ(sheet.Find({1, 1}), nullptr);
    EXPECT_EQ(sheet.EnterText(cell, std::string("'") + row.text), Entered::kDone);
    EXPECT_EQ(sheet.ValueAt({1, 1}), CellValue(row.text));
  }
  Worksheet sheet;
  EXPECT_EQ(sheet.EnterText({{1, 1}, {1, 1}}, std::string(32768, 'x')), Entered::kTooLong);
  EXPECT_EQ(sheet.EnterText({{1, 1}, {1, 1}}, std::string(32767, 'x')), Entered::kDone);
}

TEST(SpreadsheetModel, AnApostropheIsHiddenInTextCellsToo) {
  Worksheet sheet;
  const CellArea cell = {{1, 1}, {1, 1}};
  sheet.ChangeFormat(cell, [](CellFormat& format) { format.number_format = "@"; });
  sheet.EnterText(cell, "''quoted'");
  EXPECT_EQ(sheet.ValueAt({1, 1}), CellValue("'quoted'"));
}

TEST(SpreadsheetModel, ColumnsAreFittedToTheirTextsWithoutMergedCells) {
  Worksheet sheet;
  sheet.EnterText({{1, 1}, {1, 2}}, "a title that is much wider than all else");
  sheet.Merge({{1, 1}, {1, 2}});
  sheet.EnterText({{2, 1}, {2, 1}}, "材料");
  sheet.EnterText({{2, 2}, {2, 2}}, "abcdefgh");
  sheet.FitColumns({{1, 1}, {kSheetRows, kSheetColumns}});
  EXPECT_EQ(sheet.WidthOf(1), 6);
  EXPECT_EQ(sheet.WidthOf(2), 10);
  EXPECT_EQ(sheet.WidthOf(3), std::nullopt);
  EXPECT_EQ(sheet.UsedArea(), (CellArea{{1, 1}, {2, 2}}));
}

}  // namespace
}  // namespace wb
