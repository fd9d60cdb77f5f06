// The spreadsheet stand-in from its start to its end: orders, faults, what is left behind.
#include "tests/workbench/spreadsheet/spreadsheet_fixture.h"
#include "workbench/plugin/plugin.h"
#include "workbench/plugin/plugin_entry.h"

namespace wb {
namespace {

using SpreadsheetLife = SpreadsheetFixture;

TEST_F(SpreadsheetLife, WhatIsLeftBehindIsToldOnce) {
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

TEST_F(SpreadsheetLife, QuitWithUnsavedWorkAsksTheUserAndEndsAllCalls) {
  const Opened excel = OpenNew();
  excel.Cell("A1").Put(kValue2, "a");
  excel.program.Call(kQuit);
  excel.program.Put(kVisible, false);
  EXPECT_EQ(TestObject::result, RPC_E_DISCONNECTED);
  EXPECT_EQ(Breaches(),
            (Lines{"plug-in misused Excel: Quit asks the user whether to save the workbook",
                   "plug-in misused Excel: Application.Visible=: called after Quit"}));
}

TEST_F(SpreadsheetLife, AProgramThatWouldNotEndIsNotHeldAgainstThePlugin) {
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

TEST_F(SpreadsheetLife, AWorkbookThatABusyProgramDidNotMarkIsAskedAbout) {
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

TEST_F(SpreadsheetLife, AWorkbookThatCannotBeMarkedMustBeClosedBeforeTheEnd) {
  for (const char* const refused : {"Workbook.Saved=", "Workbook.Close"}) {
    Opened excel = OpenNew();
    excel.Cell("A1").Put(kValue2, "a");
    spreadsheet_.Order({.fail_at = 1, .fail_member = refused});
    excel.book.Put(kSaved, true);
    const bool marked = TestObject::result == S_OK;
    if (marked) excel.Cell("A1").Put(kValue2, "b");
    if (marked) excel.book.Call(kClose);
    host_.events.Forget<Breach>();
    excel.program.Call(kQuit);
    EXPECT_EQ(Breaches().size(), marked ? 0u : 1u) << refused;
  }
}

TEST_F(SpreadsheetLife, ThePluginsOwnCallsComeHere) {
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

TEST_F(SpreadsheetLife, WithoutComNothingStarts) {
  ::CoUninitialize();
  Start();
  EXPECT_EQ(TestObject::result, CO_E_NOTINITIALIZED);
  EXPECT_TRUE(spreadsheet_.Gone());
  ::CoInitialize(nullptr);
}

}  // namespace
}  // namespace wb
