// Tells the fields of a dialog line by line.
#include "workbench/dialog/dialog_text.h"

#include "workbench/base/text.h"

namespace wb {
namespace {

constexpr std::size_t kMostRowsTold = 5;

std::string InQuotes(const std::string& text) {
  std::string line = "\"";
  for (const char c : text) line += c == '\n' ? std::string("\\n") : std::string(1, c);
  return line + "\"";
}

// The name, with its label where that says more.
std::string Labelled(const std::string& name, const std::string& label) {
  return label.empty() || label == name ? name : name + " " + InQuotes(label);
}

std::string ItemsText(const ChoiceState& choice, const std::vector<std::string>& names) {
  std::vector<std::string> items;
  for (const std::string& name : names) items.push_back(Labelled(name, choice.LabelOf(name)));
  return items.empty() ? "none" : Join(", ", items);
}

std::string RowText(const Dialog& dialog, const TableModel& table, const TableModel::Row& row) {
  std::string text = "  row " + row.name + ":";
  for (const TableModel::Column& column : table.Columns()) {
    text += " " + InQuotes(dialog.CellText(table, row.name, column.name));
  }
  return text + "\n";
}

std::string TableText(const TableModel& table) {
  std::vector<std::string> columns;
  for (const TableModel::Column& column : table.Columns()) {
    columns.push_back(Labelled(column.name, column.label));
  }
  return std::to_string(table.Rows().size()) + " rows x " + std::to_string(columns.size()) +
         " columns" + (columns.empty() ? "" : " (" + Join(", ", columns) + ")");
}

std::string RowsText(const Dialog& dialog, const TableModel& table) {
  std::string text;
  std::size_t told = 0;
  for (const TableModel::Row& row : table.Rows()) {
    if (told++ == kMostRowsTold) return text + "  ...\n";
    text += RowText(dialog, table, row);
  }
  return text;
}

std::string ValueText(const Field& field) {
  if (const auto* choice = std::get_if<ChoiceState>(&field.state)) {
    return ": " + ItemsText(*choice, choice->Selected()) + " of " +
           ItemsText(*choice, choice->Names());
  }
  if (const auto* text = std::get_if<TextState>(&field.state))
    return ": " + InQuotes(text->Value());
  if (const auto* check = std::get_if<CheckState>(&field.state)) {
    return check->set ? ": set" : ": unset";
  }
  if (const auto* table = std::get_if<TableModel>(&field.state)) return ": " + TableText(*table);
  return {};
}

}  // namespace

std::string DescribeFields(const Dialog& dialog) {
  std::string text;
  for (const Field& field : dialog.Fields()) {
    const bool says_nothing = field.kind == FieldKind::kSubLayout ||
                              field.kind == FieldKind::kSeparator || dialog.IsCaption(field);
    if (says_nothing) continue;
    text += std::string(KindName(field.kind)) + " " + Labelled(field.name, dialog.LabelOf(field)) +
            ValueText(field);
    if (!dialog.IsShown(field)) text += " (hidden)";
    if (!dialog.IsUsable(field)) text += " (greyed)";
    text += "\n";
    if (const auto* table = std::get_if<TableModel>(&field.state)) text += RowsText(dialog, *table);
  }
  return text;
}

std::string DescribeTables(const Dialog& dialog) {
  std::string text;
  for (const Field& field : dialog.Fields()) {
    const auto* const table = std::get_if<TableModel>(&field.state);
    if (table == nullptr) continue;
    text += field.name + ": " + TableText(*table) + "\n";
    for (const TableModel::Row& row : table->Rows()) text += RowText(dialog, *table, row);
  }
  return text;
}

}  // namespace wb
