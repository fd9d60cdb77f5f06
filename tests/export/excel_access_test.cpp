// Writer and reader of workbooks against the spreadsheet program of the workbench, also where a
// call fails. What a bill looks like in its workbook is checked by scripts.
#include "tests/export/excel_probe.h"
#include "tests/workbench/host_fixture.h"
#include "workbench/plugin.h"
#include "workbench/text.h"
#include "workbench/xlsx_file.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

class ExcelAccess : public HostFixture {
 protected:
  ExcelAccess() : module_(::LoadLibraryW((TestBinaryFolder() / "excel_probe.dll").c_str())) {
    if (module_ != nullptr) InterceptImports(module_);
    host_.windows.local_app_folder = folder_;
    host_.trace.keep_lines = true;
  }
  ~ExcelAccess() override { ::FreeLibrary(module_); }

  template <typename Function>
  Function Find(const char* name) const {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(module_, name)));
  }
  bool Write() const { return Find<WriteProbe>("WriteTable")(file_.c_str()); }
  // The cells, or "unreadable".
  std::string Read() const {
    wchar_t texts[1024] = {};
    if (!Find<ReadProbe>("ReadTable")(file_.c_str(), texts, 1024)) return "unreadable";
    return FromWide(texts);
  }

  // Text of the only box since the last call; "" when there was none.
  std::string TakeBox() {
    const auto boxes = std::exchange(host_.windows.boxes, {});
    EXPECT_LE(boxes.size(), 1u);
    return boxes.empty() ? "" : boxes[0].text;
  }
  std::vector<std::string> ExcelCalls() const {
    std::vector<std::string> names;
    for (const Crossed& line : host_.trace.lines()) {
      if (line.function.starts_with(kSpreadsheetPrefix)) names.push_back(line.function.substr(6));
    }
    return names;
  }
  // Fails call 1, 2, 3 ... of `action` until it succeeds, with `check` after each failure.
  template <typename Action, typename Check>
  int FailEachCall(Action action, Check check) {
    for (int nth = 1; nth < 1000; ++nth) {
      SpreadsheetOrders orders;
      orders.fail_at = nth;
      host_.spreadsheet.Order(orders);
      if (action()) return nth;
      EXPECT_NE(TakeBox().find("the workbench was told to fail this call"), std::string::npos)
          << nth;
      EXPECT_TRUE(host_.spreadsheet.Gone()) << nth;
      check(nth);
    }
    return 0;
  }

  const fs::path file_ = folder_ / "table.xlsx";

 private:
  HMODULE module_;
};

TEST_F(ExcelAccess, ATableComesBackAsItWasWritten) {
  ASSERT_TRUE(Write());
  EXPECT_EQ(Read(), "1/2||\n=A1|007|\n'a|=1+1|\n0012||\n");
  EXPECT_EQ(TakeBox(), "");
  EXPECT_EQ(Breaches(), Lines());
}

TEST_F(ExcelAccess, TheReaderTakesWholeNumbersAndPassesEmptyRows) {
  Workbook book = NewWorkbook();
  Worksheet& sheet = book.sheets.front();
  sheet.SetValue({1, 1}, 1001.0);
  sheet.SetValue({1, 2}, 12.75);
  sheet.SetValue({3, 1}, true);
  sheet.SetValue({3, 2}, std::string("螺栓"));
  WriteXlsx(book, file_);
  EXPECT_EQ(Read(), "1001|12|\n||\nTRUE|螺栓|\n");
}

TEST_F(ExcelAccess, TheReaderAsksForTheSheetAndThenForEachCell) {
  Workbook book = NewWorkbook();
  book.sheets.front().SetValue({1, 2}, std::string("x"));
  WriteXlsx(book, file_);
  EXPECT_EQ(Read(), "|x|\n");
  EXPECT_EQ(ExcelCalls(),
            (Lines{"Application.Workbooks", "Workbooks.Open", "Workbook.Worksheets",
                   "Workbook.ActiveSheet", "Worksheet.UsedRange", "Range.Rows", "Range.Count",
                   "Worksheet.Cells", "Range.Item", "Range.Value2", "Worksheet.Cells", "Range.Item",
                   "Range.Value2", "Workbook.Close", "Application.Quit"}));
}

TEST_F(ExcelAccess, AFailureAtAnyCallOfTheReaderLeavesNothingRunning) {
  WriteXlsx(NewWorkbook(), file_);
  const int succeeded = FailEachCall([&] { return Read() != "unreadable"; }, [](int) {});
  EXPECT_EQ(succeeded, 16);
  EXPECT_EQ(Breaches(), Lines());
}

TEST_F(ExcelAccess, AFailureAtAnyCallOfTheWriterLeavesNoFile) {
  EXPECT_GT(FailEachCall([&] { return Write(); },
                         [&](int nth) { EXPECT_FALSE(fs::exists(file_)) << nth; }),
            40);
  EXPECT_TRUE(fs::exists(file_));
  EXPECT_EQ(Breaches(), Lines());
}

TEST_F(ExcelAccess, AFileThatWasNotTouchedYetSurvivesAFailure) {
  WriteFile("table.xlsx", "old");
  SpreadsheetOrders orders;
  orders.fail_at = 1;
  orders.fail_member = "Range.Merge";
  host_.spreadsheet.Order(orders);
  EXPECT_FALSE(Write());
  EXPECT_EQ(fs::file_size(file_), 3u);
}

TEST_F(ExcelAccess, AProgramThatIsNotThereIsReported) {
  SpreadsheetOrders orders;
  orders.missing = true;
  host_.spreadsheet.Order(orders);
  EXPECT_EQ(Read(), "unreadable");
  EXPECT_EQ(TakeBox(), "无法启动Excel服务器!");
  EXPECT_FALSE(Write());
  EXPECT_EQ(TakeBox(), "创建Excel失败");
}

}  // namespace
}  // namespace wb
