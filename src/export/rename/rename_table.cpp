// Fills and reads the list.
#include "export/rename/rename_table.h"

#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/component_list.h"
#include "frame/models/handle_index.h"
#include "frame/models/model_name.h"
#include "frame/models/opening.h"
#include "frame/models/retrieve.h"
#include "frame/text/text.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr char kNumber[] = "num";
constexpr char kOldName[] = "old_name";
constexpr char kType[] = "type";
constexpr char kNewName[] = "new_name";

// What the fields are copies of, and the beginnings of their names, before the row's.
constexpr char kTemplate[] = "name_input";
constexpr char kListedField[] = "input";
constexpr char kLoadedField[] = "inputImport";

// Of the columns, in their order.
constexpr size_t kOldNamePlace = 1;
constexpr size_t kTypePlace = 2;

// The models of the components, each once, in the order in which they are met.
struct ListedModels {
  std::vector<RenameRow> rows;
  long long left_out = 0;
};

ListedModels ModelsOf(const ComponentList& components, const PrefixFilter& filter) {
  ListedModels listed;
  HandleIndex met;
  for (int i = 0; i < components.size(); ++i) {
    const ProMdl model = components.model(i);
    if (model == nullptr || !met.Insert(model).second) continue;
    const auto name = ModelName(model);
    if (!name) ++listed.left_out;
    if (!name || filter.Excludes(*name)) continue;
    const std::wstring number = std::to_wstring(listed.rows.size() + 1);
    listed.rows.push_back({number, *name, TypeWord(components.type(i)), *name});
  }
  return listed;
}

}  // namespace

bool RenameTable::Clear() const {
  const auto rows = table_.RowNames();
  if (rows) {
    // Fields go with their rows; should a host keep them, a new row would meet an old field.
    for (const std::string& row : *rows) table_.ClearCell(row, kNewName);
    if (table_.DeleteAllRows()) return true;
  }
  ShowMessage(kUnreadableField);
  return false;
}

bool RenameTable::Fill(const std::string& name, const RenameRow& row,
                       const std::string& field) const {
  return table_.SetLabel(name, kNumber, row.number) &&
         table_.SetLabel(name, kOldName, row.old_name) &&
         (row.type.empty() || table_.SetLabel(name, kType, row.type)) &&
         table_.CopyIntoCell(name, kNewName, kTemplate, field) &&
         // A copy that only claims to have been made is none.
         dialog_.InputIfThere(field.c_str()).is_there &&
         Ok(dialog_.SetInputValue(field.c_str(), row.new_name));
}

bool RenameTable::Add(const std::string& last, const std::string& name, const RenameRow& row,
                      Origin origin) const {
  if (!table_.InsertRow(last, name)) return false;
  const bool is_loaded = origin == Origin::kWorkbook;
  const std::string field = (is_loaded ? kLoadedField : kListedField) + name;
  if (!Fill(name, row, field)) {
    // It would be renamed by half a truth.
    table_.ClearCell(name, kNewName);
    table_.DeleteRow(name);
    return false;
  }
  if (is_loaded) dialog_.BindFocusIn<&ShowFocusedRow>(field.c_str());
  return true;
}

void RenameTable::List(ProMdl assembly, const PrefixFilter& filter) const {
  ComponentList components;
  if (!Ok(CollectComponents(assembly, ComponentKind::kAll, &components))) {
    ShowNotCollected();
    return;
  }
  ListedModels listed = ModelsOf(components, filter);
  listed.left_out += static_cast<long long>(components.left_out().size());
  size_t count = 0;
  for (RenameRow& row : listed.rows) {
    const std::string last = count == 0 ? "" : std::to_string(count);
    const std::string name = std::to_string(count + 1);
    row.number = std::to_wstring(count + 1);
    if (Add(last, name, row, Origin::kAssembly)) {
      ++count;
    } else {
      ++listed.left_out;
    }
  }
  LogCount("rows", static_cast<long long>(count));
  NoteLeftOut(listed.left_out);
}

void RenameTable::Load(const std::vector<RenameRow>& rows) const {
  std::string last;
  long long left_out = 0;
  for (size_t i = 0; i < rows.size(); ++i) {
    const std::string name = std::to_string(i + 1);
    if (Add(last, name, rows[i], Origin::kWorkbook)) {
      last = name;
    } else {
      ++left_out;
    }
    if (IsTooLong(rows[i].new_name)) ShowMessage(TooLongInWorkbook(rows[i].new_name));
  }
  LogCount("rows", static_cast<long long>(rows.size()) - left_out);
  NoteLeftOut(left_out);
}

std::optional<std::wstring> RenameTable::NewNameOf(const std::string& row) const {
  const auto loaded = dialog_.InputIfThere((kLoadedField + row).c_str());
  if (loaded.is_there) return loaded.value;
  return dialog_.TryInputValue((kListedField + row).c_str());
}

std::optional<RenameRow> RenameTable::ReadRow(const std::string& row) const {
  const auto old_name = table_.Label(row, kOldName);
  const auto type = table_.Label(row, kType);
  const auto new_name = NewNameOf(row);
  if (!old_name || !type || !new_name) return std::nullopt;
  return RenameRow{std::wstring(row.begin(), row.end()), *old_name, *type, Trimmed(*new_name)};
}

std::optional<std::vector<RenameRow>> RenameTable::Read() const {
  const auto names = table_.RowNames();
  if (!names) return std::nullopt;
  std::vector<RenameRow> rows;
  for (const std::string& name : *names) {
    auto row = ReadRow(name);
    if (!row) return std::nullopt;
    rows.push_back(std::move(*row));
  }
  return rows;
}

void RenameTable::ShowRenamed(const RenameRow& row) const {
  table_.SetLabel(ToUtf8(row.number), kOldName, row.new_name);
}

std::optional<WorkbookTable> RenameTable::ForWorkbook(const std::wstring& title) const {
  auto labels = table_.ColumnLabels();
  const auto columns = table_.ColumnNames();
  const auto rows = table_.RowNames();
  const auto row_labels = table_.RowLabels();
  if (!labels || !columns || !rows || !row_labels) return std::nullopt;
  if (columns->empty() || labels->size() != columns->size()) return std::nullopt;
  // Our rows have names only, for which the host may give no labels at all; but as many or none.
  if (!row_labels->empty() && row_labels->size() != rows->size()) return std::nullopt;
  WorkbookTable result{title, std::move(*labels), {}};
  for (const std::string& row : *rows) {
    std::vector<WorkbookCell>& cells = result.rows.emplace_back();
    for (const std::string& column : *columns) {
      // Deliberately the field's value: its cell has no label of its own.
      const auto text = column == kNewName ? NewNameOf(row) : table_.Label(row, column);
      if (!text) return std::nullopt;
      cells.push_back({*text, false});
    }
  }
  return result;
}

void ShowFocusedRow(const DialogView& dialog) {
  CommandLog log(RenameTable::kComponent);
  RenameTable(dialog).ShowFocusedModel();
}

void RenameTable::ShowFocusedModel() const {
  dialog_.KeepAboveActiveWindow();
  const auto columns = table_.ColumnNames();
  const std::string row = table_.FocusedRow();
  if (!columns || columns->size() <= kTypePlace || row.empty()) return LogOutcome("nothing shown");
  const auto name = table_.Label(row, (*columns)[kOldNamePlace]);
  const auto type = table_.Label(row, (*columns)[kTypePlace]);
  // What a workbook says is no path.
  if (!name || !CanBeName(*name) || !type) return LogOutcome("nothing shown");
  // Whatever is no part is shown as an assembly.
  const bool is_part = TypeOf(*type) == PRO_MDL_PART;
  const ProMdl model = RetrieveModel(*name, is_part ? PRO_MDL_PART : PRO_MDL_ASSEMBLY);
  if (model == nullptr) return LogOutcome("nothing shown");
  const ProError status = ProMdlDisplay(model);
  if (Ok(status)) return;
  LogFailure(model, "ProMdlDisplay", status);
  LogOutcome("nothing shown");
}

}  // namespace qm
