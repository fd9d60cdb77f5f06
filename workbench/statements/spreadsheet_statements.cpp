// Statements on the spreadsheet program and on the workbooks it wrote.
#include <algorithm>
#include <cstdio>

#include "workbench/base/text.h"
#include "workbench/script/script_calls.h"
#include "workbench/script/script_runner.h"
#include "workbench/statements/statement_families.h"
#include "workbench/workbook/xlsx_file.h"

namespace wb {
namespace {

void Order(ScriptRun& run, const Statement& statement) {
  if (statement.Has("ready")) run.spreadsheet.EndAll();
  SpreadsheetOrders orders;
  orders.missing = statement.Has("missing");
  if (statement.Has("busy")) orders.busy = statement.Number("N");
  if (statement.Has("slow")) orders.slow_ms = statement.Number("N");
  if (statement.Has("dies")) orders.die_at = statement.Number("NTH");
  if (statement.Has("fail")) {
    orders.fail_at = statement.Number("NTH");
    orders.fail_member = statement.Text("MEMBER");
    orders.fail_silently = statement.Has("silently");
  }
  run.spreadsheet.Order(orders);
}

void ExpectExcelCalls(ScriptRun& run, const Statement& statement) {
  long calls = 0;
  for (const auto& [function, count] : run.host.trace.Counts()) {
    if (function.starts_with(kSpreadsheetPrefix)) calls += count;
  }
  run.Check(statement, calls == statement.Number("N"), "calls of Excel", statement.Text("N"),
            std::to_string(calls));
}

// The whole sequence, call by call.
void ExpectExcelOrder(ScriptRun& run, const Statement& statement) {
  std::vector<std::string> got;
  for (const Crossed& line : LinesInOrder(run)) {
    if (!line.function.starts_with(kSpreadsheetPrefix)) continue;
    got.push_back(line.function.substr(kSpreadsheetPrefix.size()));
  }
  const std::vector<std::string>& wanted = statement.Texts("MEMBER");
  const auto [at, other] = std::mismatch(wanted.begin(), wanted.end(), got.begin(), got.end());
  const auto shown = [](auto item, const std::vector<std::string>& items) {
    return item == items.end() ? "no further call" : *item;
  };
  run.Check(statement, wanted == got,
            "call " + std::to_string(at - wanted.begin() + 1) + " of Excel", shown(at, wanted),
            shown(other, got));
}

void ExpectGone(ScriptRun& run, const Statement& statement) {
  const bool gone = run.spreadsheet.Gone();
  run.Check(statement, gone, "Excel", "nothing left of it", gone ? "nothing" : "it is held");
}

struct CheckedCell {
  std::string what;
  CellValue value;
  CellFormat format;
};

// The first sheet of the workbook.
Worksheet SheetAt(ScriptRun& run, const Statement& statement) {
  try {
    return std::move(ReadXlsx(run.WorkPath(statement.Text("PATH"))).sheets.front());
  } catch (const XlsxError& error) {
    throw ScriptError(error.what());
  }
}

CheckedCell CellOf(ScriptRun& run, const Statement& statement) {
  const auto cell = ParseCellAddress(statement.Text("CELL"));
  if (!cell) throw ScriptError("\"" + statement.Text("CELL") + "\" is no cell");
  const Worksheet sheet = SheetAt(run, statement);
  return {"cell " + statement.Text("CELL"), sheet.ValueAt(*cell), sheet.FormatAt(*cell)};
}

// "text "007"", so that a text and a number that look the same are told apart.
std::string DescribeValue(const CellValue& value) {
  if (std::holds_alternative<std::string>(value)) return "text " + Quoted(CellText(value));
  if (std::holds_alternative<double>(value)) return "number " + CellText(value);
  if (std::holds_alternative<bool>(value)) return CellText(value);
  return "empty";
}

void ExpectValue(ScriptRun& run, const Statement& statement) {
  CellValue wanted;
  if (statement.Has("NUMBER")) {
    wanted = statement.Decimal("NUMBER");
  } else if (!statement.Has("empty")) {
    wanted = statement.Text("TEXT");
  }
  const CheckedCell cell = CellOf(run, statement);
  run.Check(statement, cell.value == wanted, cell.what, DescribeValue(wanted),
            DescribeValue(cell.value));
}

void ExpectFormat(ScriptRun& run, const Statement& statement) {
  const CheckedCell cell = CellOf(run, statement);
  run.CheckText(statement, "number format of " + cell.what, statement.Text("TEXT"),
                cell.format.number_format);
}

void ExpectSize(ScriptRun& run, const Statement& statement) {
  const CheckedCell cell = CellOf(run, statement);
  run.Check(statement, cell.format.size == statement.Decimal("NUMBER"), "font size of " + cell.what,
            statement.Text("NUMBER"), NumberText(cell.format.size));
}

void ExpectStyle(ScriptRun& run, const Statement& statement) {
  const CheckedCell cell = CellOf(run, statement);
  const std::string& state = statement.Text("STATE");
  const bool about_weight = state == "bold" || state == "not_bold";
  const bool centred = cell.format.alignment == CellAlignment::kCenter;
  const std::string got = about_weight ? (cell.format.bold ? "bold" : "not_bold")
                                       : (centred ? "centred" : "not_centred");
  run.Check(statement, got == state, cell.what, state, got);
}

std::string DescribeFill(const std::optional<CellFill>& fill) {
  if (!fill) return "none";
  if (fill->from_palette) return "index " + std::to_string(fill->value);
  char text[16];
  std::snprintf(text, sizeof(text), "rgb %06X", fill->value);
  return text;
}

void ExpectFill(ScriptRun& run, const Statement& statement) {
  std::string wanted = "none";
  if (statement.Has("rgb")) wanted = "rgb " + statement.Text("COLOR");
  if (statement.Has("index")) wanted = "index " + statement.Text("N");
  const CheckedCell cell = CellOf(run, statement);
  if (cell.format.fill && cell.format.fill->value == kThemeColor) {
    throw ScriptError("the fill of " + cell.what +
                      " is a colour of the book's theme, which is not modelled");
  }
  const std::string got = DescribeFill(cell.format.fill);
  run.Check(statement, got == wanted, "fill of " + cell.what, wanted, got);
}

void CheckAreas(ScriptRun& run, const Statement& statement, const std::string& what,
                const std::vector<CellArea>& areas) {
  std::vector<std::string> got;
  for (const CellArea& area : areas) got.push_back(AreaAddress(area));
  const std::vector<std::string>& wanted = statement.Texts("AREA");
  run.Check(statement, got == wanted, what, wanted.empty() ? "none" : Join(" ", wanted),
            got.empty() ? "none" : Join(" ", got));
}

void ExpectMerged(ScriptRun& run, const Statement& statement) {
  CheckAreas(run, statement, "merged cells", SheetAt(run, statement).merges());
}

void ExpectUsed(ScriptRun& run, const Statement& statement) {
  CheckAreas(run, statement, "used cells", {SheetAt(run, statement).UsedArea()});
}

void ExpectSheetRow(ScriptRun& run, const Statement& statement) {
  const Worksheet sheet = SheetAt(run, statement);
  std::vector<std::string> got;
  std::vector<std::string> wanted;
  for (const std::string& text : statement.Texts("TEXT")) wanted.push_back(Quoted(text));
  const int row = statement.Number("NTH");
  const int columns = std::max(sheet.UsedArea().last.column, static_cast<int>(wanted.size()));
  for (int column = 1; column <= columns; ++column) {
    // A number that looks like the text is no text.
    const CellValue value = sheet.ValueAt({row, column});
    const bool reads_as_text =
        std::holds_alternative<std::string>(value) || std::holds_alternative<std::monostate>(value);
    got.push_back(reads_as_text ? Quoted(CellText(value)) : DescribeValue(value));
  }
  run.Check(statement, got == wanted, "row " + statement.Text("NTH"), Join(" ", wanted),
            Join(" ", got));
}

// clang-format off
constexpr StatementForm kSpreadsheetForms[] = {
    {"excel ready",                                     kTopPlace,    &Order},
    {"excel missing",                                   kTopPlace,    &Order},
    {"excel busy N",                                    kTopPlace,    &Order},
    {"excel slow N",                                    kTopPlace,    &Order},
    {"excel fail call NTH {[of MEMBER] [silently]}",    kTopPlace,    &Order},
    {"excel dies at NTH",                               kTopPlace,    &Order},
    {"expect excel calls N",                            kTopOrDialog, &ExpectExcelCalls},
    {"expect excel order MEMBER...",                    kTopOrDialog, &ExpectExcelOrder},
    {"expect excel gone",                               kTopOrDialog, &ExpectGone},
    {"expect workbook PATH cell CELL is number NUMBER", kTopOrDialog, &ExpectValue},
    {"expect workbook PATH cell CELL is empty",         kTopOrDialog, &ExpectValue},
    {"expect workbook PATH cell CELL is TEXT",          kTopOrDialog, &ExpectValue},
    {"expect workbook PATH cell CELL format TEXT",      kTopOrDialog, &ExpectFormat},
    {"expect workbook PATH cell CELL size NUMBER",      kTopOrDialog, &ExpectSize},
    {"expect workbook PATH cell CELL fill none",        kTopOrDialog, &ExpectFill},
    {"expect workbook PATH cell CELL fill rgb COLOR",   kTopOrDialog, &ExpectFill},
    {"expect workbook PATH cell CELL fill index N",     kTopOrDialog, &ExpectFill},
    {"expect workbook PATH cell CELL "
     "STATE:bold|not_bold|centred|not_centred",         kTopOrDialog, &ExpectStyle},
    {"expect workbook PATH merged none",                kTopOrDialog, &ExpectMerged},
    {"expect workbook PATH merged AREA...",             kTopOrDialog, &ExpectMerged},
    {"expect workbook PATH used AREA",                  kTopOrDialog, &ExpectUsed},
    {"expect workbook PATH row NTH is TEXT...",         kTopOrDialog, &ExpectSheetRow},
};
// clang-format on

}  // namespace

StatementForms SpreadsheetStatements() {
  return kSpreadsheetForms;
}

}  // namespace wb
