// The spreadsheet stand-in, driven as the plug-in drives the real program.
#include <functional>

#include "tests/workbench/host/host_fixture.h"
#include "tests/workbench/spreadsheet/automation_client.h"
#include "workbench/plugin/plugin.h"
#include "workbench/plugin/plugin_entry.h"
#include "workbench/spreadsheet/spreadsheet_server.h"
#include "workbench/workbook/xlsx_file.h"

#include <objbase.h>

namespace wb {
namespace {

enum Member : DISPID {
  kColor = 0x63,
  kColorIndex = 0x61,
  kSize = 0x68,
  kBold = 0x60,
  kCount = 0x76,
  kInterior = 0x81,
  kAlignment = 0x88,
  kFont = 0x92,
  kItem = 0xAA,
  kSaveCopyAs = 0xAF,
  kAdd = 0xB5,
  kNumberFormat = 0xC1,
  kRange = 0xC5,
  kAutoFit = 0xED,
  kCells = 0xEE,
  kColumns = 0xF1,
  kEntireColumn = 0xF6,
  kRows = 0x102,
  kClose = 0x115,
  kSaved = 0x12A,
  kQuit = 0x12E,
  kActiveSheet = 0x133,
  kUsedRange = 0x19C,
  kSheets = 0x1E5,
  kWorksheets = 0x1EE,
  kVisible = 0x22E,
  kMerge = 0x234,
  kWorkbooks = 0x23C,
  kUserControl = 0x4BA,
  kValue2 = 0x56C,
  kOpen = 0x783,
};
constexpr int kCentre = -4108;

class SpreadsheetServerTest : public HostFixture {
 protected:
  SpreadsheetServerTest() {
    ::CoInitialize(nullptr);
    host_.trace.keep_lines = true;
  }
  ~SpreadsheetServerTest() override { ::CoUninitialize(); }

  SpreadsheetServer spreadsheet_{host_};

  TestObject Start() {
    CLSID class_id = {};
    void* object = nullptr;
    spreadsheet_.ClassOf("Excel.Application", &class_id);
    TestObject::result = spreadsheet_.Start(&class_id, &IID_IDispatch, &object);
    return TestObject(object);
  }
  // The program with a new workbook and its first sheet.
  struct Opened {
    TestObject program, book, sheet;
    TestObject Cell(const char* address) const { return sheet.Get(kRange, address, address); }
    void End() const {
      book.Put(kSaved, true);
      program.Call(kQuit);
    }
  };
  Opened OpenNew() {
    Opened opened;
    opened.program = Start();
    opened.book = opened.program.Get(kWorkbooks).Call(kAdd);
    opened.sheet = opened.book.Get(kSheets).Get(kItem, 1);
    return opened;
  }

  std::string File(const char* name) const { return PathToUtf8(folder_ / name); }
  std::vector<std::string> Calls() const {
    std::vector<Crossed> lines = host_.trace.lines();
    std::vector<std::string> names;
    for (const Crossed& line : lines) names.push_back(line.function.substr(6));
    return names;
  }
};

TEST_F(SpreadsheetServerTest, TheWritersSequenceGivesAFormattedWorkbook) {
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

TEST_F(SpreadsheetServerTest, AWorkbookIsReadCellByCell) {
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

TEST_F(SpreadsheetServerTest, WrongCallsAreRefusedAndHeldAgainstThePlugin) {
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

TEST_F(SpreadsheetServerTest, TheProgramsOwnErrorsExplainThemselves) {
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

TEST_F(SpreadsheetServerTest, ATargetThatIsHeldOpenKeepsItsContent) {
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

TEST_F(SpreadsheetServerTest, OrdersMakeCallsFail) {
  const Opened excel = OpenNew();
  const TestObject cell = excel.Cell("A1");
  const auto results = [&](SpreadsheetOrders orders, int calls) {
    spreadsheet_.Order(std::move(orders));
    std::vector<HRESULT> got;
    for (int i = 0; i < calls; ++i) got.push_back(cell.Put(kNumberFormat, "@"));
    return got;
  };
  using Results = std::vector<HRESULT>;
  EXPECT_EQ(results({.busy = 2}, 3),
            (Results{RPC_E_SERVERCALL_RETRYLATER, RPC_E_CALL_REJECTED, S_OK}));
  EXPECT_EQ(results({.fail_at = 2}, 3), (Results{S_OK, DISP_E_EXCEPTION, S_OK}));
  EXPECT_EQ(results({.fail_at = 1, .fail_silently = true}, 2), (Results{E_OUTOFMEMORY, S_OK}));
  EXPECT_EQ(results({.fail_at = 1, .fail_member = "Range.Merge"}, 1), Results{S_OK});
  cell.Call(kMerge, 0);
  EXPECT_EQ(TestObject::result, DISP_E_EXCEPTION);
  EXPECT_EQ(results({.die_at = 2}, 3), (Results{S_OK, RPC_E_SERVERFAULT, RPC_E_SERVERFAULT}));
  ReportLeftPrograms(host_.trace.calls());
  EXPECT_EQ(Breaches(), Lines{});
}

TEST_F(SpreadsheetServerTest, AFaultStrikesASingleMemberAsItStrikesAHostFunction) {
  const Opened excel = OpenNew();
  const TestObject cell = excel.Cell("A1");
  host_.faults.Order({.function = "Excel.Range.Value2=", .nth = 2});
  EXPECT_EQ(cell.Put(kValue2, "a"), S_OK);
  EXPECT_EQ(cell.Put(kValue2, "b"), E_FAIL);
  EXPECT_EQ(cell.Value(kValue2).Text(), "a");
}

TEST_F(SpreadsheetServerTest, WhatIsLeftBehindIsToldOnce) {
  host_.trace.Enter("command");
  Opened excel = OpenNew();
  ReportLeftPrograms(0);
  EXPECT_EQ(Breaches(), (Lines{"plug-in misused Excel: left running (started by call 1)",
                               "plug-in misused Excel: not released: Application from call 1",
                               "plug-in misused Excel: not released: Workbook from call 3",
                               "plug-in misused Excel: not released: Worksheet from call 5"}));
  ReportLeftPrograms(0);
  EXPECT_EQ(Breaches().size(), 4u);
  EXPECT_FALSE(spreadsheet_.Gone());
  excel = {};
  EXPECT_FALSE(spreadsheet_.Gone()) << "it runs on, told or not";
  spreadsheet_.EndAll();
  EXPECT_TRUE(spreadsheet_.Gone());
}

TEST_F(SpreadsheetServerTest, QuitWithUnsavedWorkAsksTheUserAndEndsAllCalls) {
  const Opened excel = OpenNew();
  excel.Cell("A1").Put(kValue2, "a");
  excel.program.Call(kQuit);
  excel.program.Put(kVisible, false);
  EXPECT_EQ(TestObject::result, RPC_E_DISCONNECTED);
  EXPECT_EQ(Breaches(),
            (Lines{"plug-in misused Excel: Quit asks the user whether to save the workbook",
                   "plug-in misused Excel: Application.Visible=: called after Quit"}));
}

TEST_F(SpreadsheetServerTest, AProgramThatWouldNotEndIsNotHeldAgainstThePlugin) {
  for (const SpreadsheetOrders& orders :
       {SpreadsheetOrders{.fail_at = 1}, SpreadsheetOrders{.busy = 1000000}}) {
    const TestObject program = Start();
    spreadsheet_.Order(orders);
    program.Call(kQuit);
  }
  ReportLeftPrograms(-1);
  EXPECT_EQ(Breaches(), Lines{});
  EXPECT_FALSE(spreadsheet_.Gone());
  // Busy for a while only, in each of the three ways: it should have been tried again.
  for (int busy = 1; busy <= 3; ++busy) {
    const TestObject program = Start();
    spreadsheet_.Order({.busy = busy});
    for (int i = 0; i < busy; ++i) program.Call(kQuit);
    host_.events.Forget<Breach>();
    ReportLeftPrograms(-1);
    EXPECT_EQ(Breaches().size(), 2u) << busy;
  }
}

TEST_F(SpreadsheetServerTest, AWorkbookThatABusyProgramDidNotMarkIsAskedAbout) {
  for (int busy = 1; busy <= 3; ++busy) {
    Opened excel = OpenNew();
    excel.Cell("A1").Put(kValue2, "a");
    spreadsheet_.Order({.busy = busy});
    for (int i = 0; i < busy; ++i) excel.book.Put(kSaved, true);
    host_.events.Forget<Breach>();
    excel.program.Call(kQuit);
    EXPECT_EQ(Breaches(),
              (Lines{"plug-in misused Excel: Quit asks the user whether to save the workbook"}))
        << busy;
  }
}

TEST_F(SpreadsheetServerTest, ThePluginsOwnCallsComeHere) {
  Plugin plugin(TestBinaryFolder() / "windows_caller.dll");
  plugin.Start();
  EXPECT_EQ(RunCommand("Spreadsheet").status, S_OK);
  EXPECT_EQ(Breaches(), (Lines{"plug-in misused Excel: left running (started by call 2)"}));
  spreadsheet_.Order({.missing = true});
  EXPECT_EQ(RunCommand("Spreadsheet").status, CO_E_CLASSSTRING);
  spreadsheet_.Order({});
  host_.faults.Order({.function = "CLSIDFromProgID", .nth = 1});
  EXPECT_EQ(RunCommand("Spreadsheet").status, CO_E_CLASSSTRING);
}

TEST_F(SpreadsheetServerTest, WithoutComNothingStarts) {
  ::CoUninitialize();
  Start();
  EXPECT_EQ(TestObject::result, CO_E_NOTINITIALIZED);
  EXPECT_TRUE(spreadsheet_.Gone());
  ::CoInitialize(nullptr);
}

}  // namespace
}  // namespace wb
