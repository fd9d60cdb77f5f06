// The list of models in the rename dialog: a row for each, its new name in a field of the last
// cell.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "export/rename/rename_rules.h"
#include "export/spreadsheet/workbook_table.h"
#include "frame/dialogs/dialog_table.h"
#include "frame/models/current_assembly.h"

namespace qm {

class RenameTable {
 public:
  explicit RenameTable(const DialogView& dialog) : dialog_(dialog), table_(dialog, kComponent) {}

  static constexpr char kComponent[] = "mdl_list";

  // False, after a message, when rows may be left.
  bool Clear() const;
  // Below the rows that are there: every model under the assembly once, in the order in which it is
  // met, but for those that the filter excludes. Tells how many were left out.
  void List(ProMdl assembly, const PrefixFilter& filter) const;
  // The rows of a workbook; their fields show the model of their row when the user goes into one.
  void Load(const std::vector<RenameRow>& rows) const;

  // All rows, new names without the blanks around them. Nothing when one cannot be read: half of a
  // batch must not be renamed.
  std::optional<std::vector<RenameRow>> Read() const;
  // The row's model has its new name: as its old one from here on, for the next press.
  void ShowRenamed(const RenameRow& row) const;
  // The list as a workbook shows it; nothing as above.
  std::optional<WorkbookTable> ForWorkbook(const std::wstring& title) const;

  // Displays the model of the row whose cell has the focus.
  void ShowFocusedModel() const;

 private:
  enum class Origin { kAssembly, kWorkbook };
  // False, and no row stays, when it cannot be shown whole.
  bool Add(const std::string& last, const std::string& name, const RenameRow& row,
           Origin origin) const;
  bool Fill(const std::string& name, const RenameRow& row, const std::string& field) const;
  std::optional<std::wstring> NewNameOf(const std::string& row) const;
  std::optional<RenameRow> ReadRow(const std::string& row) const;

  DialogView dialog_;
  DialogTable table_;
};

// The same as a dialog's action.
void ShowFocusedRow(const DialogView& dialog);

}  // namespace qm
