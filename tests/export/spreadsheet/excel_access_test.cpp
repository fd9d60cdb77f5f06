// Writer and reader of workbooks against the spreadsheet program of the workbench, also where a
// call fails. What a bill looks like in its workbook is checked by scripts.
#include "tests/export/spreadsheet/excel_probe.h"
#include "tests/workbench/host/host_fixture.h"
#include "workbench/base/text.h"
#include "workbench/plugin/plugin.h"
#include "workbench/spreadsheet/spreadsheet_server.h"
#include "workbench/workbook/xlsx_file.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

// How a call fails: with a reason of the program's own, with a bare result, or since it is gone.
struct FailureWay {
  SpreadsheetOrders (*orders)(long nth);
  const char* reason;
};
constexpr FailureWay kFailureWays[] = {
    {[](long nth) { return SpreadsheetOrders{.fail_at = nth}; },
     "the workbench was told to fail this call"},
    {[](long nth) { return SpreadsheetOrders{.fail_at = nth, .fail_silently = true}; },
     "(0x8007000E)"},
    {[](long nth) { return SpreadsheetOrders{.die_at = nth}; }, "程序已意外退出"},
};

class ExcelAccess : public HostFixture {
 protected:
  ExcelAccess() : module_(::LoadLibraryW((TestBinaryFolder() / "excel_probe.dll").c_str())) {
    if (module_ != nullptr) InterceptImports(module_);
    host_.windows.local_app_folder = folder_;
    host_.trace.keep_lines = true;
  }
  ~ExcelAccess() override { ::FreeLibrary(module_); }

  SpreadsheetServer spreadsheet_{host_};

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

  // Texts of the boxes since the last call.
  Lines TakeBoxes() {
    Lines texts;
    for (const MessageBox& box : host_.events.All<MessageBox>()) texts.push_back(box.text);
    host_.events.Forget<MessageBox>();
    return texts;
  }
  // The same for the only one; "" when there was none.
  std::string TakeBox() {
    const Lines texts = TakeBoxes();
    EXPECT_LE(texts.size(), 1u);
    return texts.empty() ? "" : texts[0];
  }
  std::vector<std::string> ExcelCalls() const {
    std::vector<std::string> names;
    for (const Crossed& line : host_.trace.lines()) {
      if (line.function.starts_with(kSpreadsheetPrefix)) names.push_back(line.function.substr(6));
    }
    return names;
  }
  // Gives each way of failing to call 1, 2, 3 ... of `action` until it succeeds, with `check` after
  // each failure; so many calls fail at least.
  template <typename Action, typename Check>
  void FailEachCall(int calls, Action action, Check check) {
    for (const FailureWay& way : kFailureWays) {
      int nth = 1;
      for (; nth < 1000; ++nth) {
        spreadsheet_.Order(way.orders(nth));
        if (action()) break;
        EXPECT_NE(TakeBox().find(way.reason), std::string::npos) << nth;
        EXPECT_TRUE(spreadsheet_.Gone()) << nth;
        check(nth);
      }
      EXPECT_TRUE(nth > calls && nth < 1000) << way.reason << nth;
    }
    EXPECT_EQ(Breaches(), Lines());
  }

  bool IsFree(const fs::path& file) const { return Find<CheckProbe>("CheckFree")(file.c_str()); }
  // Holds a file open, as a program does that shows it.
  static HANDLE Hold(const fs::path& file) {
    return ::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
  }
  // Orders the call that saves the file to fail. Shortly before, or so many calls before it,
  // `action` happens: the program rejects a call once, to be asked again after a pause.
  void FailSavingAfter(long calls_before, const std::function<void()>& action) {
    spreadsheet_.Order({});
    ASSERT_TRUE(Write());
    const Lines calls = ExcelCalls();
    const auto saving = std::ranges::find(calls, "Workbook.SaveCopyAs") - calls.begin();
    host_.trace.Restart();
    fs::remove(file_);
    spreadsheet_.Order({.busy = 1,
                        .busy_after = static_cast<long>(saving) - calls_before,
                        .fail_at = 1,
                        .fail_member = "Workbook.SaveCopyAs"});
    host_.windows.in_pause = [action, done = false]() mutable {
      if (!std::exchange(done, true)) action();
    };
  }
  std::string Log() const {
    std::ifstream log(folder_ / "Quillmax" / "quillmax.log");
    return {std::istreambuf_iterator<char>(log), {}};
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

TEST_F(ExcelAccess, ALargeTableTellsItsProgress) {
  WriteFile("text/chinese_cn/qmmsg_display.txt",
            "Rows written to Excel: %0w\nRows written to Excel: %0w\n已写入Excel的行数：%0w\n\n");
  const auto write = Find<WriteRowsProbe>("WriteRows");
  EXPECT_TRUE(write(file_.c_str(), 100));
  EXPECT_EQ(host_.events.AllTexts<Note>(), Lines());
  EXPECT_TRUE(write(file_.c_str(), 250));
  EXPECT_EQ(host_.events.AllTexts<Note>(),
            (Lines{"已写入Excel的行数：100/250", "已写入Excel的行数：200/250",
                   "已写入Excel的行数：250/250"}));
  EXPECT_EQ(Breaches(), Lines());
}

TEST_F(ExcelAccess, TheReaderTakesWholeNumbersAndPassesEmptyRows) {
  Workbook book = NewWorkbook();
  Worksheet& sheet = book.sheets.front();
  sheet.SetValue({1, 1}, 123456789012345.0);
  sheet.SetValue({1, 2}, 12.75);
  sheet.SetValue({3, 1}, true);
  sheet.SetValue({3, 2}, std::string("螺栓"));
  WriteXlsx(book, file_);
  EXPECT_EQ(Read(), "123456789012345|12|\n||\nTRUE|螺栓|\n");
}

TEST_F(ExcelAccess, AFailureAtAnyCallOfTheReaderLeavesNothingRunning) {
  WriteXlsx(NewWorkbook(), file_);
  FailEachCall(
      15, [&] { return Read() != "unreadable"; }, [](int) {});
}

// Up to the call that saves it; after that the file is there to stay.
TEST_F(ExcelAccess, AFailureAtAnyCallOfTheWriterLeavesTheFileThatWasThere) {
  for (const bool had_file : {false, true}) {
    const auto write = [&] {
      fs::remove(file_);
      if (had_file) WriteFile("table.xlsx", "old");
      return Write();
    };
    FailEachCall(40, write, [&](int nth) {
      ASSERT_EQ(fs::exists(file_), had_file) << nth;
      EXPECT_EQ(had_file ? fs::file_size(file_) : 3u, 3u) << nth;
    });
    EXPECT_GT(fs::file_size(file_), 3u);
    EXPECT_FALSE(fs::exists(folder_ / "table.old.xlsx"));
  }
}

TEST_F(ExcelAccess, ASavedFileStaysWhicheverLaterCallFails) {
  ASSERT_TRUE(Write());
  const auto count = static_cast<long>(ExcelCalls().size());
  for (const FailureWay& way : kFailureWays) {
    for (const long nth : {count - 1, count}) {
      fs::remove(file_);
      spreadsheet_.Order(way.orders(nth));
      EXPECT_TRUE(Write()) << nth;
      EXPECT_TRUE(fs::exists(file_)) << nth;
      EXPECT_TRUE(spreadsheet_.Gone()) << nth;
      EXPECT_EQ(TakeBox(), "") << nth;
    }
  }
  EXPECT_EQ(Breaches(), Lines());
}

// Not to be asked again for 30 seconds at each step of the clearing up, too.
TEST_F(ExcelAccess, AProgramThatIsBusyForGoodIsGivenUpAfterThirtySeconds) {
  SpreadsheetOrders orders;
  orders.busy = 1'000'000;
  spreadsheet_.Order(orders);
  EXPECT_FALSE(Write());
  const Lines boxes = TakeBoxes();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_NE(boxes[0].find("步骤：Workbooks\t\n\t原因：程序正忙，没有应答"), std::string::npos);
  EXPECT_EQ(boxes[1], "\tExcel没有退出，请在任务管理器中结束该进程。\t");
  EXPECT_GE(host_.windows.slept_ms, 30'000u);
  EXPECT_LE(host_.windows.slept_ms, 34'000u);
  EXPECT_EQ(spreadsheet_.Settle(0), Lines()) << "no object is kept";
  EXPECT_FALSE(spreadsheet_.Gone()) << "it never ended";
}

TEST_F(ExcelAccess, AProgramThatIsBusyForSomeSecondsIsWaitedFor) {
  spreadsheet_.Order({.busy = 9});
  EXPECT_TRUE(Write());
  EXPECT_EQ(host_.windows.slept_ms, 20u * 255 + 4000u);  // 20, 40, ... 2560, then 4000
  // Also when it is to end after a failure.
  spreadsheet_.Order({.busy = 9, .busy_after = 10, .fail_at = 10});
  EXPECT_FALSE(Write());
  EXPECT_EQ(host_.windows.slept_ms, 2 * (20u * 255 + 4000u));
  EXPECT_TRUE(spreadsheet_.Gone());
  // But not for the full time at each of its calls.
  host_.windows.slept_ms = 0;
  spreadsheet_.Order({.busy = 1'000'000, .busy_after = 10, .fail_at = 10});
  EXPECT_FALSE(Write());
  EXPECT_LE(host_.windows.slept_ms, 34'000u);
}

TEST_F(ExcelAccess, AnUnfinishedFileIsDeletedOnceItsHolderLetsGo) {
  struct Holder {
    const fs::path& file;
    HANDLE handle = INVALID_HANDLE_VALUE;
  } holder{file_};
  const auto write_and_hold = [](void* data) {
    auto& to = *static_cast<Holder*>(data);
    std::ofstream(to.file) << "half";
    to.handle = Hold(to.file);
  };
  host_.windows.in_pause = [&] {
    if (host_.windows.slept_ms == 300) ::CloseHandle(holder.handle);
  };
  Find<BeginProbe>("BeginFile")(file_.c_str(), write_and_hold, &holder);
  EXPECT_EQ(host_.windows.slept_ms, 300u);
  EXPECT_FALSE(fs::exists(file_));
  EXPECT_EQ(Log(), "");
  // Somebody who does not is left alone after two seconds.
  host_.windows.slept_ms = 1000;
  Find<BeginProbe>("BeginFile")(file_.c_str(), write_and_hold, &holder);
  EXPECT_EQ(host_.windows.slept_ms, 3000u);
  EXPECT_NE(Log().find("could not be deleted"), std::string::npos);
  ::CloseHandle(holder.handle);
}

TEST_F(ExcelAccess, WhatCannotBeClearedAwayIsToldWithItsPlace) {
  for (const bool had_file : {false, true}) {
    HANDLE held = INVALID_HANDLE_VALUE;
    // Somebody takes hold of what is being saved.
    FailSavingAfter(0, [&] {
      WriteFile("table.xlsx", "half");
      held = Hold(file_);
    });
    if (had_file) WriteFile("table.xlsx", "old");
    EXPECT_FALSE(Write());
    const std::string aside = PathToUtf8(folder_ / "table.old.xlsx");
    EXPECT_TRUE(TakeBox().starts_with(
        "\t导出Excel失败，未完成的文件无法删除，请手动删除：" + PathToUtf8(file_) +
        (had_file ? "\t\n\t原有文件已保留为：" + aside : "") + "\t\n\t步骤：SaveCopyAs\t"));
    EXPECT_EQ(fs::exists(folder_ / "table.old.xlsx"), had_file);
    ::CloseHandle(held);
    fs::remove(file_);
  }
}

TEST_F(ExcelAccess, AFileThatIsOpenedMeanwhileIsReportedAndKept) {
  HANDLE held = INVALID_HANDLE_VALUE;
  FailSavingAfter(1, [&] { held = Hold(file_); });
  WriteFile("table.xlsx", "old");
  EXPECT_FALSE(Write());
  EXPECT_EQ(TakeBox(), PathToUtf8(file_) + "文件已在excel打开，请关闭后重试");
  ::CloseHandle(held);
  EXPECT_EQ(fs::file_size(file_), 3u);
  EXPECT_FALSE(fs::exists(folder_ / "table.old.xlsx"));
  EXPECT_TRUE(spreadsheet_.Gone());
}

TEST_F(ExcelAccess, AFileThatCannotBeReplacedIsReportedAndTheCheckChangesNothing) {
  WriteFile("table.xlsx", "old");
  const std::string refusal = PathToUtf8(file_) + "文件已在excel打开，请关闭后重试";
  const HANDLE held = Hold(file_);
  EXPECT_FALSE(IsFree(file_));
  EXPECT_EQ(TakeBox(), refusal);
  ::CloseHandle(held);
  ::SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_FALSE(IsFree(file_));
  EXPECT_EQ(TakeBox(), refusal);
  ::SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_TRUE(IsFree(file_));
  EXPECT_EQ(fs::file_size(file_), 3u);
  EXPECT_TRUE(IsFree(folder_ / "none.xlsx"));
  EXPECT_TRUE(IsFree(folder_ / "no folder" / "table.xlsx"));
  EXPECT_EQ(TakeBox(), "");
}

}  // namespace
}  // namespace wb
