// The sequence of calls that reads a worksheet.
#include "export/spreadsheet/excel_reader.h"

#include "export/spreadsheet/excel_ids.h"
#include "export/spreadsheet/excel_session.h"
#include "export/spreadsheet/sheet_rules.h"
#include "frame/messages/message_box.h"

namespace qm {
namespace {

constexpr wchar_t kNoExcel[] = L"无法启动Excel服务器!";
constexpr wchar_t kFailed[] = L"读取Excel文件失败。";

std::wstring TextOf(const Variant& value) {
  const VARIANT& cell = value.get();
  switch (cell.vt) {
    case VT_BSTR:
      return {cell.bstrVal, ::SysStringLen(cell.bstrVal)};
    case VT_R8:
      return WholePart(cell.dblVal);
    case VT_I4:
      return std::to_wstring(cell.lVal);
    case VT_BOOL:
      return cell.boolVal != VARIANT_FALSE ? L"TRUE" : L"FALSE";
    default:
      return {};
  }
}

int CountOf(const Dispatch& rows) {
  const Variant count = rows.GetValue(excel::kCount);
  if (count.get().vt == VT_I4) return count.get().lVal;
  throw AutomationError(excel::kCount.name, DISP_E_TYPEMISMATCH, {});
}

std::wstring CellText(const Dispatch& sheet, int row, int column) {
  const Variant row_number(row);
  const Variant column_number(column);
  const Dispatch cell = sheet.Get(excel::kCells).Get(excel::kItem, {&row_number, &column_number});
  return TextOf(cell.GetValue(excel::kValue2));
}

SheetTexts ReadSheet(const Dispatch& workbook, size_t columns) {
  // Asked for although the sheet comes from the workbook: the sequence that the program is known to
  // serve.
  const Dispatch sheets = workbook.Get(excel::kWorksheets);
  const Dispatch sheet = workbook.Get(excel::kActiveSheet);
  const int count = CountOf(sheet.Get(excel::kUsedRange).Get(excel::kRows));
  SheetTexts rows;
  for (int row = 1; row <= count; ++row) {
    std::vector<std::wstring>& texts = rows.emplace_back();
    for (size_t column = 1; column <= columns; ++column) {
      texts.push_back(CellText(sheet, row, static_cast<int>(column)));
    }
  }
  return rows;
}

SheetTexts Read(ExcelSession& excel, const std::wstring& path, size_t columns) {
  excel.OpenWorkbook(path);
  SheetTexts rows = ReadSheet(excel.workbook(), columns);
  excel.CloseWorkbook();
  excel.Quit();
  return rows;
}

}  // namespace

std::optional<SheetTexts> ReadWorkbook(const std::wstring& path, size_t columns) {
  std::optional<SheetTexts> rows;
  const ExcelRun run = RunExcel([&](ExcelSession& excel) { rows = Read(excel, path, columns); });
  if (!run.is_started) ShowShortMessage(kNoExcel);
  if (run.failure) ShowExcelFailure(kFailed, *run.failure);
  TellWhetherEnded(run);
  return rows;
}

}  // namespace qm
