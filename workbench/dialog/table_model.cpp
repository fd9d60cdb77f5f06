// Live contents of a dialog's table.
#include "workbench/dialog/table_model.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace wb {
namespace {

constexpr int kLargestColor = 255;

// True when the names are non-empty, differ from one another and none satisfies `exists`.
template <class Exists>
bool AreNewNames(const std::vector<std::string>& names, Exists exists) {
  std::unordered_set<std::string_view> seen;
  return std::all_of(names.begin(), names.end(), [&](const std::string& name) {
    return !name.empty() && !exists(name) && seen.insert(name).second;
  });
}

template <class Items, class Member>
std::vector<std::string> Gather(const Items& items, Member member) {
  std::vector<std::string> texts;
  texts.reserve(items.size());
  for (const auto& item : items) texts.push_back(item.*member);
  return texts;
}

template <class Items, class Member, class Values>
UiStatus Spread(Items& items, Member member, const Values& values) {
  if (items.size() != values.size()) return UiStatus::kBadArgument;
  auto value = values.begin();
  for (auto& item : items) item.*member = *value++;
  return UiStatus::kOk;
}

}  // namespace

bool IsPolicy(int number) {
  return number >= static_cast<int>(SelectionPolicy::kSingle) &&
         number <= static_cast<int>(SelectionPolicy::kExtended);
}

bool PolicyAllows(SelectionPolicy policy, std::size_t count) {
  if (policy == SelectionPolicy::kSingle) return count <= 1;
  return policy != SelectionPolicy::kBrowse || count == 1;
}

std::size_t TableModel::ColumnPosition(std::string_view name) const {
  const auto found = std::find_if(columns_.begin(), columns_.end(),
                                  [&](const Column& column) { return column.name == name; });
  return static_cast<std::size_t>(found - columns_.begin());
}

UiStatus TableModel::InsertColumns(std::string_view after, const std::vector<std::string>& names) {
  std::size_t position = 0;
  if (!after.empty()) {
    position = ColumnPosition(after);
    if (position == columns_.size()) return UiStatus::kNotFound;
    ++position;
  }
  const auto exists = [&](const std::string& name) { return slot_of_.count(name) != 0; };
  if (!AreNewNames(names, exists)) return UiStatus::kBadArgument;
  std::vector<Column> added;
  for (const std::string& name : names) {
    std::size_t slot = slot_count_;
    if (free_slots_.empty()) {
      ++slot_count_;
    } else {
      slot = free_slots_.back();
      free_slots_.pop_back();
    }
    slot_of_.emplace(name, slot);
    added.push_back({name, {}, 0, slot});
  }
  columns_.insert(columns_.begin() + static_cast<std::ptrdiff_t>(position), added.begin(),
                  added.end());
  return UiStatus::kOk;
}

UiStatus TableModel::DeleteColumns(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    if (slot_of_.count(name) == 0) return UiStatus::kNotFound;
  }
  for (const std::string& name : names) {
    const auto found = slot_of_.find(name);
    if (found == slot_of_.end()) continue;  // named twice
    const std::size_t slot = found->second;
    for (Row& row : rows_) {
      if (slot < row.cells.size()) row.cells[slot] = TableCell();
      std::erase_if(row.components, [&](const auto& held) { return held.first == slot; });
    }
    free_slots_.push_back(slot);
    slot_of_.erase(found);
    columns_.erase(columns_.begin() + static_cast<std::ptrdiff_t>(ColumnPosition(name)));
    if (focus_column_ == name) focus_row_.clear();
  }
  return UiStatus::kOk;
}

UiStatus TableModel::InsertRows(std::string_view after, const std::vector<std::string>& names) {
  auto position = rows_.begin();
  if (!after.empty()) {
    const auto found = row_index_.find(after);
    if (found == row_index_.end()) return UiStatus::kNotFound;
    position = std::next(found->second);
  }
  const auto exists = [&](const std::string& name) { return row_index_.count(name) != 0; };
  if (!AreNewNames(names, exists)) return UiStatus::kBadArgument;
  for (const std::string& name : names) {
    const auto row = rows_.insert(position, Row{name, {}, false, {}, {}});
    row_index_.emplace(row->name, row);
  }
  return UiStatus::kOk;
}

UiStatus TableModel::SetRowNames(const std::vector<std::string>& names) {
  const auto none = [](const std::string&) { return false; };
  if (!AreNewNames(names, none)) return UiStatus::kBadArgument;
  DeleteRows(RowNames());
  return InsertRows({}, names);
}

UiStatus TableModel::DeleteRows(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    if (row_index_.count(name) == 0) return UiStatus::kNotFound;
  }
  for (const std::string& name : names) {
    const auto found = row_index_.find(name);
    if (found == row_index_.end()) continue;  // named twice
    const auto row = found->second;
    if (focus_row_ == name) focus_row_.clear();
    row_index_.erase(found);
    rows_.erase(row);
  }
  return UiStatus::kOk;
}

std::vector<std::string> TableModel::ColumnNames() const {
  return Gather(columns_, &Column::name);
}

std::vector<std::string> TableModel::ColumnLabels() const {
  return Gather(columns_, &Column::label);
}

std::vector<std::string> TableModel::RowNames() const {
  return Gather(rows_, &Row::name);
}

std::vector<std::string> TableModel::RowLabels() const {
  return Gather(rows_, &Row::label);
}

UiStatus TableModel::SetColumnLabels(const std::vector<std::string>& labels) {
  return Spread(columns_, &Column::label, labels);
}

UiStatus TableModel::SetColumnWidths(const std::vector<int>& widths) {
  return Spread(columns_, &Column::width, widths);
}

UiStatus TableModel::SetRowLabels(const std::vector<std::string>& labels) {
  return Spread(rows_, &Row::label, labels);
}

const TableCell* TableModel::CellAt(const Row& row, const Column& column) {
  return column.slot < row.cells.size() ? &row.cells[column.slot] : nullptr;
}

UiStatus TableModel::FindCell(std::string_view row, std::string_view column,
                              const TableCell** cell) const {
  static const TableCell kBlank;
  const auto found_row = row_index_.find(row);
  const auto found_slot = slot_of_.find(std::string(column));
  if (found_row == row_index_.end() || found_slot == slot_of_.end()) return UiStatus::kNotFound;
  const std::vector<TableCell>& cells = found_row->second->cells;
  *cell = found_slot->second < cells.size() ? &cells[found_slot->second] : &kBlank;
  return UiStatus::kOk;
}

UiStatus TableModel::ChangeCell(std::string_view row, std::string_view column,
                                const std::function<void(TableCell&)>& change) {
  const TableCell* cell = nullptr;
  const UiStatus status = FindCell(row, column, &cell);
  if (status != UiStatus::kOk) return status;
  std::vector<TableCell>& cells = row_index_.find(row)->second->cells;
  const std::size_t slot = slot_of_.find(std::string(column))->second;
  if (slot >= cells.size()) {
    cells.reserve(slot_count_);
    cells.resize(slot + 1);
  }
  change(cells[slot]);
  return UiStatus::kOk;
}

UiStatus TableModel::GetLabel(std::string_view row, std::string_view column,
                              std::string* label) const {
  const TableCell* cell = nullptr;
  const UiStatus status = FindCell(row, column, &cell);
  if (status == UiStatus::kOk) *label = cell->label;
  return status;
}

UiStatus TableModel::SetLabel(std::string_view row, std::string_view column,
                              std::string_view label) {
  return ChangeCell(row, column, [&](TableCell& cell) { cell.label = label; });
}

UiStatus TableModel::GetColor(std::string_view row, std::string_view column, CellColor which,
                              int* color) const {
  const TableCell* cell = nullptr;
  const UiStatus status = FindCell(row, column, &cell);
  if (status == UiStatus::kOk) *color = cell->*which;
  return status;
}

UiStatus TableModel::SetColor(std::string_view row, std::string_view column, CellColor which,
                              int color) {
  if (color < 0 || color > kLargestColor) return UiStatus::kBadArgument;
  return ChangeCell(row, column,
                    [&](TableCell& cell) { cell.*which = static_cast<std::int16_t>(color); });
}

UiStatus TableModel::GetBackground(std::string_view row, std::string_view column,
                                   int* color) const {
  return GetColor(row, column, &TableCell::background, color);
}

UiStatus TableModel::SetBackground(std::string_view row, std::string_view column, int color) {
  return SetColor(row, column, &TableCell::background, color);
}

UiStatus TableModel::GetForeground(std::string_view row, std::string_view column,
                                   int* color) const {
  return GetColor(row, column, &TableCell::foreground, color);
}

UiStatus TableModel::SetForeground(std::string_view row, std::string_view column, int color) {
  return SetColor(row, column, &TableCell::foreground, color);
}

TableModel::Row* TableModel::RowOfCell(std::string_view row, std::string_view column,
                                       std::size_t* slot) const {
  const auto found_row = row_index_.find(row);
  const auto found_slot = slot_of_.find(std::string(column));
  if (found_row == row_index_.end() || found_slot == slot_of_.end()) return nullptr;
  *slot = found_slot->second;
  return &*found_row->second;
}

UiStatus TableModel::GetComponent(std::string_view row, std::string_view column,
                                  std::string* name) const {
  std::size_t slot = 0;
  const Row* const found = RowOfCell(row, column, &slot);
  if (found == nullptr) return UiStatus::kNotFound;
  for (const auto& [held_slot, held_name] : found->components) {
    if (held_slot != slot) continue;
    *name = held_name;
    return UiStatus::kOk;
  }
  return UiStatus::kNotFound;
}

UiStatus TableModel::PutComponent(std::string_view row, std::string_view column,
                                  const std::string& name) {
  std::string held;
  if (GetComponent(row, column, &held) == UiStatus::kOk) return UiStatus::kBadArgument;
  std::size_t slot = 0;
  Row* const found = RowOfCell(row, column, &slot);
  if (found == nullptr) return UiStatus::kNotFound;
  found->components.emplace_back(slot, name);
  return UiStatus::kOk;
}

UiStatus TableModel::DropComponent(std::string_view row, std::string_view column) {
  std::size_t slot = 0;
  Row* const found = RowOfCell(row, column, &slot);
  const auto is_here = [&](const auto& held) { return held.first == slot; };
  const bool dropped = found != nullptr && std::erase_if(found->components, is_here) > 0;
  return dropped ? UiStatus::kOk : UiStatus::kNotFound;
}

UiStatus TableModel::SetPolicy(int policy) {
  if (!IsPolicy(policy)) return UiStatus::kBadArgument;
  policy_ = static_cast<SelectionPolicy>(policy);
  return UiStatus::kOk;
}

std::vector<std::string> TableModel::SelectedRows() const {
  std::vector<std::string> names;
  for (const Row& row : rows_) {
    if (row.selected) names.push_back(row.name);
  }
  return names;
}

UiStatus TableModel::SelectRows(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    if (row_index_.count(name) == 0) return UiStatus::kNotFound;
  }
  if (!PolicyAllows(policy_, names.size())) return UiStatus::kBadArgument;
  for (Row& row : rows_) row.selected = false;
  for (const std::string& name : names) row_index_.find(name)->second->selected = true;
  return UiStatus::kOk;
}

UiStatus TableModel::GetFocus(std::string* row, std::string* column) const {
  if (focus_row_.empty()) return UiStatus::kNotFound;
  *row = focus_row_;
  *column = focus_column_;
  return UiStatus::kOk;
}

UiStatus TableModel::SetFocus(std::string_view row, std::string_view column) {
  const TableCell* cell = nullptr;
  const UiStatus status = FindCell(row, column, &cell);
  if (status != UiStatus::kOk) return status;
  focus_row_ = row;
  focus_column_ = column;
  return UiStatus::kOk;
}

}  // namespace wb
