// The way of the bill from its table to a workbook.
#include "export/bill/bill_export.h"

#include <optional>

#include "export/bill/bill_table.h"
#include "export/spreadsheet/dispatch.h"
#include "export/spreadsheet/excel_writer.h"
#include "export/spreadsheet/workbook_file.h"
#include "export/spreadsheet/workbook_title.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"

namespace qm {
namespace {

// Nothing when the cell cannot be read, or is blank where a bill never is: a blank quantity in a
// workbook that looks finished would be believed.
std::optional<WorkbookCell> ReadCell(const DialogTable& table, const std::string& row,
                                     const std::string& column, const std::wstring& label) {
  auto text = table.Label(row, column);
  const auto color = table.Color(row, column);
  if (!text || !color) return std::nullopt;
  if (text->empty() && !MayBeBlank(column, label)) {
    LogEvent("row " + row + ", column " + column + " is blank, which it never is");
    return std::nullopt;
  }
  return WorkbookCell{std::move(*text), *color == kAssemblyColor};
}

// Nothing when the table cannot be read, down to its last cell; `unread` receives how many cells.
std::optional<WorkbookTable> ReadTable(const DialogTable& table, std::wstring title,
                                       long long* unread) {
  auto labels = table.ColumnLabels();
  const auto columns = table.ColumnNames();
  const auto rows = table.RowNames();
  const auto row_labels = table.RowLabels();
  if (!labels || !columns || !rows || !row_labels) return std::nullopt;
  if (columns->empty() || labels->size() != columns->size()) return std::nullopt;
  // Our rows have names only, for which the host may give no labels at all; but as many or none.
  if (!row_labels->empty() && row_labels->size() != rows->size()) return std::nullopt;
  WorkbookTable result{std::move(title), std::move(*labels), {}};
  result.rows.reserve(rows->size());
  for (const std::string& row : *rows) {
    std::vector<WorkbookCell>& cells = result.rows.emplace_back();
    cells.reserve(columns->size());
    for (size_t i = 0; i < columns->size(); ++i) {
      auto cell = ReadCell(table, row, (*columns)[i], result.labels[i]);
      if (!cell) ++*unread;
      cells.push_back(std::move(cell).value_or(WorkbookCell()));
    }
  }
  if (*unread > 0) return std::nullopt;
  return result;
}

}  // namespace

void ExportBill(const DialogView& dialog) {
  CommandLog log("QmExportBom");
  const auto title = TitleOfCurrentModel(L" BOM");
  if (!title) return;
  const ComScope com;
  const auto path = ChooseWorkbookToWrite();
  if (!path) LogOutcome("cancelled");
  if (!path || !IsFreeToWrite(*path)) return;
  long long unread = 0;
  const auto table = ReadTable(DialogTable(dialog, kBillTable), *title, &unread);
  if (!table) {
    ShowMessage(kUnreadableField);
    NoteLeftOut(unread);
    return;
  }
  LogCount("rows", static_cast<long long>(table->rows.size()));
  if (WriteWorkbook(*table, *path)) OpenWorkbookFile(*path);
}

}  // namespace qm
