// The table of a dialog, as commands fill and read it: rows and columns by name, cells by label and
// background colour.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/dialogs/dialog.h"
#include "toolkit/ui_table.h"

namespace qm {

// A table by its dialog and name. Owns nothing.
class DialogTable {
 public:
  DialogTable(DialogView dialog, std::string component)
      : dialog_(std::move(dialog)), component_(std::move(component)) {}

  // Nothing when the host does not tell, which differs from an empty table.
  std::optional<std::vector<std::string>> RowNames() const;
  std::optional<std::vector<std::wstring>> RowLabels() const;
  std::optional<std::vector<std::string>> ColumnNames() const;
  std::optional<std::vector<std::wstring>> ColumnLabels() const;
  std::optional<std::vector<std::string>> SelectedRows() const;
  // These and no others.
  bool SelectRows(std::vector<std::string> rows) const;
  // Lets the user select many of both. Rows that are selected may be lost.
  bool AllowManyRowsAndColumns() const;

  // The changes are false, after a line in the run log, when the host refuses them: the next cell
  // may do.
  // After row `neighbour`; an empty one inserts at the start.
  bool InsertRow(const std::string& neighbour, std::string name) const;
  bool DeleteRow(std::string name) const;
  // False when a row may be left.
  bool DeleteAllRows() const;
  bool InsertColumns(const std::string& neighbour, std::vector<std::string> names) const;
  bool DeleteColumns(std::vector<std::string> names) const;
  // One label for each column, in their order.
  bool SetColumnLabels(std::vector<std::wstring> labels) const;

  // A copy of the dialog's component `source` stands in the cell as `name`.
  bool CopyIntoCell(const std::string& row, const std::string& column, const char* source,
                    const std::string& name) const;
  // Whatever stands in the cell, if anything does.
  void ClearCell(const std::string& row, const std::string& column) const;
  // Name of the row whose cell has the focus; empty when none has.
  std::string FocusedRow() const;
  void SetSelectionPolicy(ProUISelectionpolicy policy) const;

  // Empty when nothing was written to the cell; nothing, after a line in the run log, when it
  // cannot be read.
  std::optional<std::wstring> Label(const std::string& row, const std::string& column) const;
  bool SetLabel(const std::string& row, const std::string& column, std::wstring label) const;
  // A negative number for a cell that was not coloured; nothing as above.
  std::optional<ProUIColorType> Color(const std::string& row, const std::string& column) const;
  bool SetColor(const std::string& row, const std::string& column, ProUIColorType color) const;

 private:
  ProError InsertFirstRow(char** names) const;

  DialogView dialog_;
  std::string component_;
};

}  // namespace qm
