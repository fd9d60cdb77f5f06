// The way of the bill from its table to a workbook.
#include "export/bill/bill_export.h"

#include <optional>

#include "export/bill/bill_table.h"
#include "export/spreadsheet/dispatch.h"
#include "export/spreadsheet/excel_writer.h"
#include "export/spreadsheet/workbook_file.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/model_name.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kNoName[] = L"\t无法读取当前模型的名称，操作已停止。\t";

std::optional<std::wstring> CurrentModelName() {
  ProMdl model = nullptr;
  if (!Ok(ProMdlCurrentGet(&model)) || model == nullptr) return std::nullopt;
  return ModelName(model);
}

WorkbookCell ReadCell(const DialogTable& table, const std::string& row, const std::string& column) {
  return {table.Label(row, column), table.Color(row, column) == kAssemblyColor};
}

// Nothing when the table cannot be read.
std::optional<WorkbookTable> ReadTable(const DialogTable& table, std::wstring title) {
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
    for (const std::string& column : *columns) cells.push_back(ReadCell(table, row, column));
  }
  return result;
}

}  // namespace

void ExportBill(const DialogView& dialog) {
  CommandLog log("QmExportBom");
  const auto name = CurrentModelName();
  if (!name) {
    ShowMessage(kNoName);
    return;
  }
  const ComScope com;
  const auto path = ChooseWorkbookToWrite();
  if (!path || !IsFreeToWrite(*path)) return;
  const auto table = ReadTable(DialogTable(dialog, kBillTable), *name + L" BOM");
  if (!table) {
    ShowMessage(kUnreadableField);
    return;
  }
  LogCount("rows", static_cast<long long>(table->rows.size()));
  if (WriteWorkbook(*table, *path)) OpenWorkbookFile(*path);
}

}  // namespace qm
