// Live contents of a dialog's table: columns, rows, cell labels and colours, selection and focus.
// Look-ups go through hashes and rows sit in a linked list, so that a bill of 100,000 rows and 26
// columns fills, reads and empties at constant cost a cell.
#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "workbench/dialog/ui_status.h"

namespace wb {

// Numbers of the host's selection policies.
enum class SelectionPolicy { kSingle = 1, kBrowse = 2, kMultiple = 3, kExtended = 4 };

// True for the numbers that are selection policies.
bool IsPolicy(int number);

// True when `count` items may be selected together under `policy`.
bool PolicyAllows(SelectionPolicy policy, std::size_t count);

// Colour of a cell that nobody has coloured.
inline constexpr int kNoCellColor = -1;

struct TableCell {
  std::string label;
  std::int16_t background = kNoCellColor;
  std::int16_t foreground = kNoCellColor;
};

class TableModel {
 public:
  struct Column {
    std::string name;
    std::string label;
    int width = 0;         // in characters; 0 leaves it to the contents
    std::size_t slot = 0;  // index into the cells of each row
  };
  struct Row {
    std::string name;
    std::string label;
    bool selected = false;
    std::vector<TableCell> cells;  // may be shorter than the columns; the rest is blank
    std::vector<std::pair<std::size_t, std::string>> components;  // in cells: slot and name
  };

  TableModel() = default;
  // Rows are indexed by views of their own names, which a copy would not own.
  TableModel(const TableModel&) = delete;
  TableModel& operator=(const TableModel&) = delete;
  TableModel(TableModel&&) = default;
  TableModel& operator=(TableModel&&) = default;

  // Every operation that fails leaves the table as it was. Names must be unique and not empty
  // (kBadArgument); a name that must exist and does not is kNotFound.

  // Inserts after column or row `after`; an empty `after` inserts at the start.
  UiStatus InsertColumns(std::string_view after, const std::vector<std::string>& names);
  // Makes these the rows, all blank.
  UiStatus SetRowNames(const std::vector<std::string>& names);
  UiStatus InsertRows(std::string_view after, const std::vector<std::string>& names);
  UiStatus DeleteColumns(const std::vector<std::string>& names);
  UiStatus DeleteRows(const std::vector<std::string>& names);

  std::vector<std::string> ColumnNames() const;
  std::vector<std::string> ColumnLabels() const;
  std::vector<std::string> RowNames() const;
  std::vector<std::string> RowLabels() const;
  // One label or width a column or row, in their order; another count is kBadArgument.
  UiStatus SetColumnLabels(const std::vector<std::string>& labels);
  UiStatus SetColumnWidths(const std::vector<int>& widths);
  UiStatus SetRowLabels(const std::vector<std::string>& labels);

  UiStatus GetLabel(std::string_view row, std::string_view column, std::string* label) const;
  UiStatus SetLabel(std::string_view row, std::string_view column, std::string_view label);
  // Colours are the host's colour numbers, 0 to 255; kNoCellColor where none was set.
  UiStatus GetBackground(std::string_view row, std::string_view column, int* color) const;
  UiStatus SetBackground(std::string_view row, std::string_view column, int color);
  UiStatus GetForeground(std::string_view row, std::string_view column, int* color) const;
  UiStatus SetForeground(std::string_view row, std::string_view column, int color);

  // The component that stands in a cell, by its name; it goes with its row or column. kNotFound for
  // a cell without one, kBadArgument for a second one.
  UiStatus GetComponent(std::string_view row, std::string_view column, std::string* name) const;
  UiStatus PutComponent(std::string_view row, std::string_view column, const std::string& name);
  UiStatus DropComponent(std::string_view row, std::string_view column);

  SelectionPolicy Policy() const { return policy_; }
  UiStatus SetPolicy(int policy);
  std::vector<std::string> SelectedRows() const;  // in row order
  UiStatus SelectRows(const std::vector<std::string>& names);

  // The cell with the keyboard focus; kNotFound while there is none.
  UiStatus GetFocus(std::string* row, std::string* column) const;
  UiStatus SetFocus(std::string_view row, std::string_view column);

  const std::vector<Column>& Columns() const { return columns_; }
  const std::list<Row>& Rows() const { return rows_; }
  // The cell, or null when nothing was ever written to it.
  static const TableCell* CellAt(const Row& row, const Column& column);

 private:
  using RowIndex = std::unordered_map<std::string_view, std::list<Row>::iterator>;

  using CellColor = std::int16_t TableCell::*;

  // Position of the column, or columns_.size().
  std::size_t ColumnPosition(std::string_view name) const;
  // The row and the column's slot; null when there is no such cell.
  Row* RowOfCell(std::string_view row, std::string_view column, std::size_t* slot) const;
  UiStatus FindCell(std::string_view row, std::string_view column, const TableCell** cell) const;
  UiStatus GetColor(std::string_view row, std::string_view column, CellColor which,
                    int* color) const;
  UiStatus SetColor(std::string_view row, std::string_view column, CellColor which, int color);
  UiStatus ChangeCell(std::string_view row, std::string_view column,
                      const std::function<void(TableCell&)>& change);

  std::vector<Column> columns_;
  std::vector<std::size_t> free_slots_;
  std::size_t slot_count_ = 0;
  std::list<Row> rows_;
  RowIndex row_index_;  // keys view the names inside rows_
  std::unordered_map<std::string, std::size_t> slot_of_;
  SelectionPolicy policy_ = SelectionPolicy::kSingle;
  std::string focus_row_;
  std::string focus_column_;
};

}  // namespace wb
