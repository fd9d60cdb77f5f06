// The sequence of calls that fills a worksheet and saves it.
#include "export/spreadsheet/excel_writer.h"

#include "export/spreadsheet/excel_ids.h"
#include "export/spreadsheet/excel_session.h"
#include "export/spreadsheet/new_file.h"
#include "export/spreadsheet/sheet_rules.h"
#include "export/spreadsheet/workbook_file.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"

namespace qm {
namespace {

constexpr wchar_t kNoExcel[] = L"创建Excel失败";
constexpr wchar_t kTooWide[] = L"bom表格列数不得大于26列";
constexpr wchar_t kFailed[] = L"导出Excel失败，未生成文件。";
constexpr wchar_t kUnfinished[] = L"导出Excel失败，未完成的文件无法删除，请手动删除：";
constexpr wchar_t kOldFile[] = L"\t\n\t原有文件已保留为：";

constexpr char kProgressNote[] = "Rows written to Excel: %0w";
constexpr size_t kRowsANote = 100;

constexpr size_t kTitleRow = 1;
constexpr size_t kLabelRow = 2;
constexpr size_t kFirstDataRow = 3;
constexpr int kTitleSize = 16;

class SheetWriter {
 public:
  SheetWriter(const Dispatch& sheet, const WorkbookTable& table) : sheet_(sheet), table_(table) {}

  void Write() {
    try {
      WriteAll();
    } catch (AutomationError& error) {
      if (!last_range_.empty()) error.set_place(last_range_);
      throw;
    }
  }

 private:
  // In this order: the text format of the data cells precedes their values, or long digits would be
  // numbers already, and the widths follow all values.
  void WriteAll() {
    WriteTitle();
    for (size_t column = 0; column < table_.labels.size(); ++column) WriteLabel(column);
    for (size_t row = 0; row < table_.rows.size(); ++row) {
      if (row > 0 && row % kRowsANote == 0) TellProgress(row);
      for (size_t column = 0; column < table_.labels.size(); ++column) WriteCell(row, column);
    }
    if (table_.rows.size() > kRowsANote) TellProgress(table_.rows.size());
    last_range_.clear();
    sheet_.Get(excel::kColumns).Call(excel::kAutoFit);
    sheet_.Get(excel::kRows).Call(excel::kAutoFit);
  }

  // A large table takes minutes.
  void TellProgress(size_t rows) const {
    const std::wstring text = std::to_wstring(rows) + L"/" + std::to_wstring(table_.rows.size());
    DisplayNote(kProgressNote, text.c_str());
  }

  Dispatch Range(const std::wstring& first, const std::wstring& last) {
    last_range_ = first;
    const Variant from(first);
    const Variant to(last);
    return sheet_.Get(excel::kRange, {&from, &to});
  }
  Dispatch Cell(size_t column, size_t row) {
    const std::wstring address = CellAddress(column, row);
    return Range(address, address);
  }
  static void Centre(const Dispatch& range) {
    range.Get(excel::kEntireColumn).Put(excel::kHorizontalAlignment, Variant(excel::kCentre));
  }

  // Title and labels have no text format, so a text that would be read as something else is marked.
  void WriteTitle() {
    const std::wstring first = CellAddress(0, kTitleRow);
    const std::wstring last = CellAddress(table_.labels.size() - 1, kTitleRow);
    Range(first, last).Put(excel::kValue2, Variant(AsPlainText(table_.title)));
    const Dispatch range = Range(first, last);
    const Variant not_across(0);
    range.Call(excel::kMerge, {&not_across});
    range.Get(excel::kInterior).Put(excel::kColor, Variant(excel::kYellow));
    Centre(range);
    range.Get(excel::kFont).Put(excel::kBold, Variant(true));
    range.Get(excel::kFont).Put(excel::kSize, Variant(kTitleSize));
  }

  void WriteLabel(size_t column) {
    const Dispatch cell = Cell(column, kLabelRow);
    cell.Put(excel::kValue2, Variant(AsPlainText(table_.labels[column])));
    Centre(cell);
    cell.Get(excel::kFont).Put(excel::kBold, Variant(true));
  }

  void WriteCell(size_t row, size_t column) {
    const WorkbookCell& source = table_.rows[row][column];
    const Dispatch cell = Cell(column, row + kFirstDataRow);
    cell.Put(excel::kNumberFormat, Variant(std::wstring(excel::kTextFormat)));
    cell.Put(excel::kValue2, Variant(AsFormattedText(source.text)));
    if (!source.tinted) return;
    cell.Get(excel::kInterior).Put(excel::kColorIndex, Variant(excel::kLightGreenIndex));
  }

  const Dispatch& sheet_;
  const WorkbookTable& table_;
  std::wstring last_range_;  // tells the user how far it came
};

enum class Outcome { kFinished, kRefusedWidth, kHeldOpen };

AutomationError SavingError(DWORD error, const wchar_t* description) {
  return AutomationError(excel::kSaveCopyAs.name, HRESULT_FROM_WIN32(error), description);
}

// From here on the file stays, whatever becomes of the program.
Outcome Save(const ExcelSession& excel, const std::wstring& path, NewFile& file) {
  if (const DWORD error = file.Begin(); error != ERROR_SUCCESS) {
    if (IsHeldOpen(error)) return Outcome::kHeldOpen;
    throw SavingError(error, L"原有文件无法移开");
  }
  const Variant target(path);
  excel.workbook().Call(excel::kSaveCopyAs, {&target});
  if (!file.Finish()) throw SavingError(ERROR_FILE_NOT_FOUND, L"文件没有生成");
  return Outcome::kFinished;
}

// Throws AutomationError.
Outcome Write(ExcelSession& excel, const WorkbookTable& table, const std::wstring& path,
              NewFile& file) {
  excel.AddWorkbook();
  const Variant first(1);
  const Dispatch sheet = excel.workbook().Get(excel::kSheets).Get(excel::kItem, {&first});
  if (table.labels.size() > kMaxColumns) return Outcome::kRefusedWidth;
  SheetWriter(sheet, table).Write();
  excel.application().Put(excel::kVisible, Variant(false));
  excel.application().Put(excel::kUserControl, Variant(false));
  const Outcome outcome = Save(excel, path, file);
  if (outcome != Outcome::kFinished) return outcome;
  // Quitting would ask about the workbook otherwise.
  excel.workbook().Put(excel::kSaved, Variant(true));
  excel.Quit();
  return outcome;
}

void ShowFailure(const AutomationError& error, const std::wstring& path, NewFile& file) {
  const NewFile::Leftovers left = file.Discard();
  std::wstring outcome = left.unfinished ? kUnfinished + path : kFailed;
  if (!left.old_file.empty()) outcome += kOldFile + left.old_file;
  ShowExcelFailure(outcome, error);
}

}  // namespace

bool WriteWorkbook(const WorkbookTable& table, const std::wstring& path) {
  NewFile file(path);
  Outcome outcome = Outcome::kFinished;
  const ExcelRun run =
      RunExcel([&](ExcelSession& excel) { outcome = Write(excel, table, path, file); });
  if (!run.is_started) ShowShortWarning(kNoExcel);
  if (outcome == Outcome::kRefusedWidth) ShowMessage(kTooWide);
  if (outcome == Outcome::kHeldOpen) ShowHeldOpen(path);
  if (run.failure && file.is_finished()) {
    LogEvent(run.failure->what());
  } else if (run.failure) {
    ShowFailure(*run.failure, path, file);
  }
  TellWhetherEnded(run);
  return file.is_finished();
}

}  // namespace qm
