// Columns, rows and cells of the drawings' table.
#include "export/drawings/export_list.h"

#include <algorithm>
#include <unordered_map>

#include "export/drawings/export_source.h"
#include "frame/folders/folder_drawings.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/parameter_text.h"
#include "frame/models/retrieve.h"
#include "frame/settings/config.h"
#include "frame/text/fixed_text.h"
#include "frame/text/letter_case.h"
#include "frame/text/list_rules.h"
#include "toolkit/drawing.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr char kTable[] = "drw_list";
constexpr char kNumberColumn[] = "num";
constexpr char kNameColumn[] = "drw_name";
constexpr char kSizeColumn[] = "sheet_size";
constexpr char kSheetsColumn[] = "sheets";
constexpr char kParameterColumns[] = "param";  // followed by a number

constexpr wchar_t kEmptyList[] = L"\t\t当前工作目录中无工程图\t\t";
constexpr wchar_t kUnsuitable[] = L"\t当前模型不是组件/制造或零件，无法获取工程图";

bool IsParameterColumn(const std::string& name) {
  return name.starts_with(kParameterColumns);
}

// Adds rows below those that are there, numbered on.
class RowAdder {
 public:
  explicit RowAdder(const DialogTable& table) : table_(table) {}

  void Add(const std::wstring& drawing) {
    std::string row = std::to_string(count_ + 1);
    if (!table_.InsertRow(last_, row)) {
      ++left_out_;
      return;
    }
    ++count_;
    last_ = std::move(row);
    if (!table_.SetLabel(last_, kNumberColumn, std::to_wstring(count_))) ++left_out_;
    if (!table_.SetLabel(last_, kNameColumn, drawing)) ++left_out_;
  }
  void AddUnknown() { ++left_out_; }

  long long left_out() const { return left_out_; }

 private:
  const DialogTable& table_;
  std::string last_;
  long long count_ = 0;
  long long left_out_ = 0;
};

long long AddModelRows(const DialogTable& table) {
  const auto drawings = DrawingsOfCurrentModel();
  if (!drawings) {
    ShowMessage(kUnsuitable);
    return 0;
  }
  RowAdder rows(table);
  for (const std::wstring& name : drawings->names) rows.Add(name);
  return rows.left_out() + drawings->left_out;
}

// Nothing, after the message, when there are none or the host does not tell.
std::optional<std::vector<std::string>> RowsToLoad(const DialogTable& table) {
  auto rows = table.RowNames();
  if (!rows) {
    ShowMessage(kUnreadableField);
    return std::nullopt;
  }
  if (!rows->empty()) return rows;
  ShowMessage(kEmptyList);
  return std::nullopt;
}

// The drawing of a row, without a name when the cell cannot be read.
std::wstring NameOf(const DialogTable& table, const std::string& row) {
  return table.Label(row, kNameColumn).value_or(std::wstring());
}

// False when the user is to be told of the row. Deliberately not of a drawing that cannot be
// retrieved: its cells stay empty, and the run log says why.
bool LoadSheetsOf(const DialogTable& table, const std::string& row) {
  const std::wstring name = NameOf(table, row);
  if (name.empty()) return false;
  const ProMdl drawing = RetrieveModel(name, PRO_MDL_DRAWING);
  if (drawing == nullptr) return true;
  int count = 0;
  ProError status = ProDrawingSheetsCount(drawing, &count);
  bool is_whole = Ok(status) && count > 0;
  if (is_whole) {
    is_whole = table.SetLabel(row, kSheetsColumn, std::to_wstring(count));
  } else {
    LogFailure(name, "ProDrawingSheetsCount", status);
  }
  ProName size = {};
  ProMatrix transform = {};
  status = ProDrawingSheetTrfGet(drawing, 1, size, transform);
  if (Ok(status) && size[0] != L'\0')
    return table.SetLabel(row, kSizeColumn, std::wstring(FixedText(size))) && is_whole;
  LogFailure(name, "ProDrawingSheetTrfGet", status);
  return false;
}

// The model files of the working directory by their names in lower case, the first of each name.
std::unordered_map<std::wstring, FileParts> ModelsByName() {
  std::unordered_map<std::wstring, FileParts> models;
  for (const std::wstring& path : FilesOfFolder(kModelFiles)) {
    if (auto parts = PartsOfPath(path)) models.emplace(LowerCased(parts->name), std::move(*parts));
  }
  return models;
}

// By the extension as the host parts it; any other than these two is no model that is looked into.
ProMdl RetrieveByExtension(const FileParts& file) {
  if (file.extension == L"prt") return RetrieveModel(file.name, PRO_MDL_PART);
  if (file.extension == L"asm") return RetrieveModel(file.name, PRO_MDL_ASSEMBLY);
  return nullptr;
}

// The configured columns: their names, and the parameters that they are labelled with.
struct ParameterColumns {
  std::vector<std::string> names;
  std::vector<std::wstring> parameters;
};

std::optional<ParameterColumns> ReadParameterColumns(const DialogTable& table) {
  const auto names = table.ColumnNames();
  const auto labels = table.ColumnLabels();
  if (!names || !labels || names->size() != labels->size()) return std::nullopt;
  ParameterColumns columns;
  for (size_t i = 0; i < names->size(); ++i) {
    if (!IsParameterColumn((*names)[i])) continue;
    columns.names.push_back((*names)[i]);
    columns.parameters.push_back((*labels)[i]);
  }
  return columns;
}

// Number of cells that should have a text and could not be given it.
long long WriteParameters(const DialogTable& table, const std::string& row, ProMdl model,
                          const ParameterColumns& columns) {
  long long left_out = 0;
  const std::vector<ParameterText> texts = ReadParameterTexts(model, columns.parameters);
  for (size_t i = 0; i < texts.size(); ++i) {
    if (!texts[i].is_known) ++left_out;
    if (texts[i].text && !table.SetLabel(row, columns.names[i], *texts[i].text)) ++left_out;
  }
  return left_out;
}

}  // namespace

DialogTable ExportTable(const DialogView& dialog) {
  return {dialog, kTable};
}

long long SetExportColumns(const DialogTable& table) {
  const auto setting = TryReadSetting(L"tableCols", kContentKey, ConfigPath(kExportFile));
  if (!setting) LogEvent("the columns of the drawings cannot be read from their settings file");
  std::vector<std::wstring> parameters = SplitNames(setting.value_or(std::wstring()));
  const auto count = static_cast<long long>(parameters.size());
  auto old_columns = table.ColumnNames();
  if (!old_columns) {
    ShowMessage(kUnreadableField);
    return 0;
  }
  std::erase_if(*old_columns, [](const std::string& name) { return !IsParameterColumn(name); });
  if (!table.DeleteColumns(std::move(*old_columns))) return count + 1;
  std::vector<std::string> names;
  for (size_t i = 1; i <= parameters.size(); ++i) {
    names.push_back(kParameterColumns + std::to_string(i));
  }
  bool is_whole = table.InsertColumns(kNameColumn, std::move(names));
  if (!is_whole) parameters.clear();
  std::vector<std::wstring> labels = {L"序号", L"图纸名称"};
  labels.insert(labels.end(), parameters.begin(), parameters.end());
  labels.insert(labels.end(), {L"图幅大小", L"页数"});
  is_whole = table.SetColumnLabels(std::move(labels)) && is_whole;
  return is_whole && setting ? 0 : count + 1;
}

long long AddFileRows(const DialogTable& table, const std::vector<std::wstring>& paths) {
  RowAdder rows(table);
  for (const std::wstring& path : paths) {
    const std::wstring name = NameInPath(path);
    if (name.empty()) {
      rows.AddUnknown();
    } else {
      rows.Add(name);
    }
  }
  return rows.left_out();
}

void ListDrawings(const DialogView& dialog) {
  CommandLog log("SelDirRadio");
  const DialogTable table = ExportTable(dialog);
  const auto source = dialog.TryRadioValue("SelDirRadio");
  if (!source || !table.DeleteAllRows()) return ShowMessage(kUnreadableField);
  long long left_out = 0;
  if (*source == "workDir") {
    const auto paths = FilesOfFolder(kDrawingFiles);
    if (paths.empty()) ShowShortMessage(kNoDrawings);
    left_out = AddFileRows(table, paths);
  } else if (*source == "curMdl") {
    left_out = AddModelRows(table);
  }
  table.AllowManyRowsAndColumns();
  NoteLeftOut(left_out);
}

void SelectAllOrNone(const DialogView& dialog) {
  const DialogTable table = ExportTable(dialog);
  const auto rows = table.RowNames();
  const auto selected = table.SelectedRows();
  if (!rows || !selected) return ShowMessage(kUnreadableField);
  table.SelectRows(selected->empty() ? *rows : std::vector<std::string>());
}

void ReverseSelection(const DialogView& dialog) {
  const DialogTable table = ExportTable(dialog);
  auto rows = table.RowNames();
  auto selected = table.SelectedRows();
  if (!rows || !selected) return ShowMessage(kUnreadableField);
  std::ranges::sort(*selected);
  std::erase_if(*rows,
                [&](const std::string& row) { return std::ranges::binary_search(*selected, row); });
  table.SelectRows(std::move(*rows));
}

void LoadSheets(const DialogView& dialog) {
  CommandLog log("QmLoadDrwInfo");
  const DialogTable table = ExportTable(dialog);
  const auto rows = RowsToLoad(table);
  if (!rows) return;
  NoteLeftOut(std::ranges::count_if(
      *rows, [&](const std::string& row) { return !LoadSheetsOf(table, row); }));
}

void LoadParameters(const DialogView& dialog) {
  CommandLog log("QmLoadParams");
  const DialogTable table = ExportTable(dialog);
  const auto rows = RowsToLoad(table);
  if (!rows) return;
  const auto columns = ReadParameterColumns(table);
  if (!columns) return ShowMessage(kUnreadableField);
  const auto models = ModelsByName();
  long long left_out = 0;
  for (const std::string& row : *rows) {
    const std::wstring name = NameOf(table, row);
    if (name.empty()) ++left_out;
    const auto found = models.find(LowerCased(name));
    if (found == models.end()) continue;
    const ProMdl model = RetrieveByExtension(found->second);
    if (model != nullptr) left_out += WriteParameters(table, row, model, *columns);
  }
  NoteLeftOut(left_out);
}

std::optional<std::vector<std::wstring>> SelectedDrawings(const DialogTable& table) {
  const auto rows = table.SelectedRows();
  if (!rows) return std::nullopt;
  std::vector<std::wstring> names;
  for (const std::string& row : *rows) {
    names.push_back(NameOf(table, row));
    if (names.back().empty()) return std::nullopt;
  }
  return names;
}

}  // namespace qm
