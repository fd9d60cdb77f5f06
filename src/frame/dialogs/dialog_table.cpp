// The calls behind the tables of dialogs.
#include "frame/dialogs/dialog_table.h"

#include "frame/messages/run_log.h"
#include "frame/text/text.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

// No colour of the host; stays when a success fills nothing in.
constexpr ProUIColorType kNoColor = -1;

template <typename List>
using TextOf = std::conditional_t<std::is_same_v<List, NameList>, std::string, std::wstring>;

// What a list-giving function of the host answers. "Not found" counts as an empty table.
template <typename List, typename Function>
std::optional<std::vector<TextOf<List>>> Gathered(Function& function, const char* dialog,
                                                  const std::string& component) {
  List list;
  const ProError status = function(dialog, component.c_str(), list.put_count(), list.put_texts());
  if (!Ok(status) && status != PRO_TK_E_NOT_FOUND) return std::nullopt;
  std::vector<TextOf<List>> texts;
  texts.reserve(static_cast<size_t>(list.size()));
  for (int i = 0; i < list.size(); ++i) texts.emplace_back(list[i]);
  return texts;
}

template <typename Text>
auto PointersTo(std::vector<Text>& texts) {
  std::vector<typename Text::value_type*> pointers;
  pointers.reserve(texts.size());
  for (Text& text : texts) pointers.push_back(text.data());
  return pointers;
}

// Logged here, since a table's user goes on with the next cell.
bool Done(const char* function, ProError status) {
  if (!Ok(status)) LogFailure(nullptr, function, status);
  return Ok(status);
}
bool CellDone(const std::string& row, const std::string& column, const char* function,
              ProError status) {
  if (!Ok(status)) LogFailure(FromAnsi("row " + row + ", column " + column), function, status);
  return Ok(status);
}

}  // namespace

std::optional<std::vector<std::string>> DialogTable::RowNames() const {
  return Gathered<NameList>(ProUITableRownamesGet, dialog_.name(), component_);
}

std::optional<std::vector<std::wstring>> DialogTable::RowLabels() const {
  return Gathered<WideTextList>(ProUITableRowlabelsGet, dialog_.name(), component_);
}

std::optional<std::vector<std::string>> DialogTable::ColumnNames() const {
  return Gathered<NameList>(ProUITableColumnnamesGet, dialog_.name(), component_);
}

std::optional<std::vector<std::wstring>> DialogTable::ColumnLabels() const {
  return Gathered<WideTextList>(ProUITableColumnlabelsGet, dialog_.name(), component_);
}

std::optional<std::vector<std::string>> DialogTable::SelectedRows() const {
  return Gathered<NameList>(ProUITableSelectednamesGet, dialog_.name(), component_);
}

bool DialogTable::SelectRows(std::vector<std::string> rows) const {
  auto pointers = PointersTo(rows);
  const auto count = static_cast<int>(rows.size());
  char** const names = rows.empty() ? nullptr : pointers.data();
  return Done("ProUITableSelectednamesSet",
              ProUITableSelectednamesSet(dialog_.name(), component_.c_str(), count, names));
}

bool DialogTable::AllowManyRowsAndColumns() const {
  constexpr auto kMany = PROUISELPOLICY_MULTIPLE;
  const bool rows = Done("ProUITableSelectionpolicySet",
                         ProUITableSelectionpolicySet(dialog_.name(), component_.c_str(), kMany));
  return Done("ProUITableColumnselectionpolicySet",
              ProUITableColumnselectionpolicySet(dialog_.name(), component_.c_str(), kMany)) &&
         rows;
}

ProError DialogTable::InsertFirstRow(char** names) const {
  // Which neighbour stands for the start is not certain: null, then an empty name; a host that
  // takes neither is told what the rows are, which is the same while there are none.
  ProError status = ProUITableRowsInsert(dialog_.name(), component_.c_str(), nullptr, 1, names);
  if (Ok(status)) return status;
  status = ProUITableRowsInsert(dialog_.name(), component_.c_str(), "", 1, names);
  if (Ok(status)) return status;
  const auto rows = RowNames();
  if (!rows || !rows->empty()) return status;
  return ProUITableRownamesSet(dialog_.name(), component_.c_str(), 1, names);
}

bool DialogTable::InsertRow(const std::string& neighbour, std::string name) const {
  char* names[] = {name.data()};
  return Done("ProUITableRowsInsert", neighbour.empty()
                                          ? InsertFirstRow(names)
                                          : ProUITableRowsInsert(dialog_.name(), component_.c_str(),
                                                                 neighbour.c_str(), 1, names));
}

bool DialogTable::DeleteRow(std::string name) const {
  char* names[] = {name.data()};
  return Done("ProUITableRowsDelete",
              ProUITableRowsDelete(dialog_.name(), component_.c_str(), 1, names));
}

bool DialogTable::DeleteAllRows() const {
  auto names = RowNames();
  if (!names || names->empty()) return names.has_value();
  return Done("ProUITableRowsDelete",
              ProUITableRowsDelete(dialog_.name(), component_.c_str(),
                                   static_cast<int>(names->size()), PointersTo(*names).data()));
}

bool DialogTable::InsertColumns(const std::string& neighbour,
                                std::vector<std::string> names) const {
  if (names.empty()) return true;
  return Done("ProUITableColumnsInsert",
              ProUITableColumnsInsert(dialog_.name(), component_.c_str(), neighbour.c_str(),
                                      static_cast<int>(names.size()), PointersTo(names).data()));
}

bool DialogTable::DeleteColumns(std::vector<std::string> names) const {
  if (names.empty()) return true;
  return Done("ProUITableColumnsDelete",
              ProUITableColumnsDelete(dialog_.name(), component_.c_str(),
                                      static_cast<int>(names.size()), PointersTo(names).data()));
}

bool DialogTable::SetColumnLabels(std::vector<std::wstring> labels) const {
  return Done(
      "ProUITableColumnlabelsSet",
      ProUITableColumnlabelsSet(dialog_.name(), component_.c_str(), static_cast<int>(labels.size()),
                                PointersTo(labels).data()));
}

bool DialogTable::CopyIntoCell(const std::string& row, const std::string& column,
                               const char* source, const std::string& name) const {
  return CellDone(row, column, "ProUITableCellComponentCopy",
                  ProUITableCellComponentCopy(dialog_.name(), component_.c_str(), row.c_str(),
                                              column.c_str(), source, name.c_str()));
}

void DialogTable::ClearCell(const std::string& row, const std::string& column) const {
  ProUITableCellComponentDelete(dialog_.name(), component_.c_str(), row.c_str(), column.c_str());
}

std::string DialogTable::FocusedRow() const {
  NarrowText row;
  NarrowText column;
  const ProError status =
      ProUITableFocusCellGet(dialog_.name(), component_.c_str(), row.put(), column.put());
  return Ok(status) && row ? row.get() : std::string();
}

void DialogTable::SetSelectionPolicy(ProUISelectionpolicy policy) const {
  Done("ProUITableSelectionpolicySet",
       ProUITableSelectionpolicySet(dialog_.name(), component_.c_str(), policy));
}

std::optional<std::wstring> DialogTable::Label(const std::string& row,
                                               const std::string& column) const {
  WideText label;
  const auto ask = [&] {
    return ProUITableCellLabelGet(dialog_.name(), component_.c_str(), row.c_str(), column.c_str(),
                                  label.put());
  };
  ProError status = ask();
  // A host may give no text for a blank cell; but then it gives none again.
  if (Ok(status) && !label) status = ask();
  if (Ok(status) && label) return label.get();
  if (Ok(status) || status == PRO_TK_E_NOT_FOUND) return std::wstring();
  CellDone(row, column, "ProUITableCellLabelGet", status);
  return std::nullopt;
}

bool DialogTable::SetLabel(const std::string& row, const std::string& column,
                           std::wstring label) const {
  return CellDone(row, column, "ProUITableCellLabelSet",
                  ProUITableCellLabelSet(dialog_.name(), component_.c_str(), row.c_str(),
                                         column.c_str(), label.data()));
}

std::optional<ProUIColorType> DialogTable::Color(const std::string& row,
                                                 const std::string& column) const {
  ProUIColorType color = kNoColor;
  const ProError status = ProUITableCellBackgroundColorGet(dialog_.name(), component_.c_str(),
                                                           row.c_str(), column.c_str(), &color);
  if (Ok(status)) return color;
  if (status == PRO_TK_E_NOT_FOUND) return kNoColor;
  CellDone(row, column, "ProUITableCellBackgroundColorGet", status);
  return std::nullopt;
}

bool DialogTable::SetColor(const std::string& row, const std::string& column,
                           ProUIColorType color) const {
  return CellDone(row, column, "ProUITableCellBackgroundColorSet",
                  ProUITableCellBackgroundColorSet(dialog_.name(), component_.c_str(), row.c_str(),
                                                   column.c_str(), color));
}

}  // namespace qm
