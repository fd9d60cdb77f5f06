// What the spreadsheet stand-in makes of each call: workbooks, refusals, its own errors.
#include <functional>

#include "tests/workbench/spreadsheet/spreadsheet_fixture.h"
#include "workbench/plugin/plugin_entry.h"
#include "workbench/workbook/xlsx_file.h"

namespace wb {
namespace {

using SpreadsheetMembers = SpreadsheetFixture;

TEST_F(SpreadsheetMembers, TheWritersSequenceGivesAFormattedWorkbook) {
  {
    const Opened excel = OpenNew();
    excel.sheet.Get(kRange, "A1", "B1").Put(kValue2, "pump BOM");
    const TestObject title = excel.sheet.Get(kRange, "A1", "B1");
    title.Call(kMerge, 0);
    title.Get(kInterior).Put(kColor, 65535);
    title.Get(kEntireColumn).Put(kAlignment, kCentre);
    title.Get(kFont).Put(kBold, true);
    title.Get(kFont).Put(kSize, 16);
    const TestObject cell = excel.Cell("B3");
    cell.Put(kNumberFormat, "@");
    cell.Put(kValue2, "007");
    cell.Get(kInterior).Put(kColorIndex, 35);
    excel.sheet.Get(kColumns).Call(kAutoFit);
    excel.sheet.Get(kRows).Call(kAutoFit);
    excel.program.Put(kVisible, false);
    excel.program.Put(kUserControl, false);
    excel.book.Call(kSaveCopyAs, File("bill.xlsx"));
    excel.End();
  }
  EXPECT_EQ(Calls(), (Lines{"Application.Workbooks",
                            "Workbooks.Add",
                            "Workbook.Sheets",
                            "Sheets.Item",
                            "Worksheet.Range",
                            "Range.Value2=",
                            "Worksheet.Range",
                            "Range.Merge",
                            "Range.Interior",
                            "Interior.Color=",
                            "Range.EntireColumn",
                            "Range.HorizontalAlignment=",
                            "Range.Font",
                            "Font.Bold=",
                            "Range.Font",
                            "Font.Size=",
                            "Worksheet.Range",
                            "Range.NumberFormat=",
                            "Range.Value2=",
                            "Range.Interior",
                            "Interior.ColorIndex=",
                            "Worksheet.Columns",
                            "Range.AutoFit",
                            "Worksheet.Rows",
                            "Range.AutoFit",
                            "Application.Visible=",
                            "Application.UserControl=",
                            "Workbook.SaveCopyAs",
                            "Workbook.Saved=",
                            "Application.Quit"}));
  ReportLeftPrograms(0);
  EXPECT_EQ(Breaches(), Lines{});
  EXPECT_TRUE(spreadsheet_.Gone());

  const Worksheet sheet = ReadXlsx(folder_ / "bill.xlsx").sheets.at(0);
  EXPECT_EQ(CellText(sheet.ValueAt({1, 1})), "pump BOM");
  EXPECT_EQ(CellText(sheet.ValueAt({1, 2})), "");
  EXPECT_TRUE(sheet.IsMerged({{1, 1}, {1, 2}}));
  const CellFormat title = sheet.FormatAt({1, 1});
  EXPECT_TRUE(title.bold && title.size == 16 && title.fill == CellFill({false, 0xFFFF00}));
  const CellFormat cell = sheet.FormatAt({3, 2});
  EXPECT_TRUE(cell.number_format == "@" && cell.fill == CellFill({true, 35}));
  EXPECT_EQ(cell.alignment, CellAlignment::kCenter);
  EXPECT_EQ(sheet.ValueAt({3, 2}), CellValue("007"));
  EXPECT_TRUE(sheet.WidthOf(2).has_value());
}

TEST_F(SpreadsheetMembers, AWorkbookIsReadCellByCell) {
  Workbook book = NewWorkbook();
  book.sheets[0].SetValue({1, 1}, "title");
  book.sheets[0].SetValue({3, 2}, 1001.0);
  WriteXlsx(book, folder_ / "names.xlsx");
  {
    const TestObject program = Start();
    const TestObject opened = program.Get(kWorkbooks).Call(kOpen, File("names.xlsx"));
    const TestObject sheets = opened.Get(kWorksheets);
    const TestObject sheet = program.Get(kActiveSheet);
    EXPECT_EQ(sheet.Get(kUsedRange).Get(kRows).Value(kCount).value.lVal, 3);
    EXPECT_EQ(sheet.Get(kCells).Get(kItem, 1, 1).Value(kValue2).Text(), "title");
    EXPECT_EQ(sheet.Get(kCells).Get(kItem, 3, 2).Value(kValue2).value.dblVal, 1001);
    EXPECT_EQ(sheet.Get(kCells).Get(kItem, 2, 1).Value(kValue2).value.vt, VT_EMPTY);
    opened.Call(kClose);
    program.Call(kQuit);
  }
  ReportLeftPrograms(0);
  EXPECT_EQ(Breaches(), Lines{});
}

TEST_F(SpreadsheetMembers, WrongCallsAreRefusedAndHeldAgainstThePlugin) {
  const Opened excel = OpenNew();
  const TestObject cell = excel.Cell("A1");
  const struct {
    std::function<void()> call;
    HRESULT result;
    const char* breach;
  } kCases[] = {
      {[&] { cell.Value(0x123); }, DISP_E_MEMBERNOTFOUND, "Range has no member 0x123"},
      {[&] { excel.book.Get(kRange, "A1", "A1"); }, DISP_E_MEMBERNOTFOUND,
       "Workbook has no member 0xC5"},
      {[&] { cell.Call(kInterior); }, DISP_E_MEMBERNOTFOUND, "Range.Interior called as a method"},
      {[&] { cell.Invoke(kValue2, DISPATCH_PROPERTYGET | DISPATCH_METHOD); }, DISP_E_MEMBERNOTFOUND,
       "Range.Value2 called as a mixture"},
      {[&] { cell.Call(kMerge); }, DISP_E_BADPARAMCOUNT, "Range.Merge: 0 arguments"},
      {[&] { excel.sheet.Get(kRange, "A1"); }, DISP_E_BADPARAMCOUNT,
       "Worksheet.Range: 1 arguments"},
      {[&] { excel.sheet.Get(kRange, "[1", "[1"); }, DISP_E_BADINDEX,
       "Worksheet.Range: \"[1\" is no cell"},
      {[&] { cell.Put(kNumberFormat, 5); }, DISP_E_TYPEMISMATCH,
       "Range.NumberFormat=: argument 1 is no text"},
      {[&] { cell.Get(kFont).Put(kSize, "big"); }, DISP_E_TYPEMISMATCH,
       "Font.Size=: argument 1 is of the wrong type"},
      {[&] { excel.book.Call(kSaveCopyAs, "bill.xlsx"); }, E_INVALIDARG,
       "Workbook.SaveCopyAs: a file without its folder: \"bill.xlsx\""},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.breach);
    host_.events.Forget<Breach>();
    row.call();
    EXPECT_EQ(TestObject::result, row.result);
    EXPECT_EQ(Breaches(), Lines{"plug-in misused Excel: " + std::string(row.breach)});
  }
  wchar_t name[] = L"Value2";
  wchar_t* names[] = {name};
  DISPID id = 0;
  host_.events.Forget<Breach>();
  EXPECT_EQ(cell.get()->GetIDsOfNames(IID_NULL, names, 1, 0, &id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(host_.events.All<Breach>().size(), 1u);
}

TEST_F(SpreadsheetMembers, TheProgramsOwnErrorsExplainThemselves) {
  const Opened excel = OpenNew();
  const TestObject cell = excel.Cell("A1");
  const std::function<void()> kCalls[] = {
      [&] { cell.Put(kValue2, "=1+"); },
      [&] { cell.Put(kValue2, std::string(32768, 'x')); },
      [&] { cell.Get(kInterior).Put(kColorIndex, 57); },
      [&] { cell.Get(kFont).Put(kSize, 0); },
      [&] { cell.Put(kAlignment, 7); },
      [&] { cell.Call(kAutoFit); },
      [&] { excel.book.Get(kSheets).Get(kItem, 2); },
      [&] { excel.program.Get(kWorkbooks).Call(kOpen, File("missing.xlsx")); },
      [&] { excel.book.Call(kSaveCopyAs, File("missing folder\\bill.xlsx")); },
  };
  for (const auto& call : kCalls) {
    call();
    EXPECT_EQ(TestObject::result, DISP_E_EXCEPTION);
    EXPECT_NE(TestObject::description, "");
  }
  EXPECT_EQ(Breaches(), Lines{});
}

TEST_F(SpreadsheetMembers, ATargetThatIsHeldOpenKeepsItsContent) {
  const Opened excel = OpenNew();
  WriteFile("held.xlsx", "old");
  const HANDLE held = ::CreateFileW(ToWide(File("held.xlsx")).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  excel.book.Call(kSaveCopyAs, File("held.xlsx"));
  EXPECT_EQ(TestObject::result, DISP_E_EXCEPTION);
  ::CloseHandle(held);
  EXPECT_EQ(std::filesystem::file_size(folder_ / "held.xlsx"), 3u);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "held.xlsx.part"));
}

}  // namespace
}  // namespace wb
