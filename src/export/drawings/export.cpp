// QmExport: the dialog, and what it says when the run begins.
#include "export/drawings/export.h"

#include <optional>

#include "export/drawings/export_list.h"
#include "export/drawings/export_run.h"
#include "export/drawings/export_source.h"
#include "frame/dialogs/stored_fields.h"
#include "frame/folders/folder_drawings.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/settings/config.h"
#include "frame/settings/notepad.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kNoModels[] = L"当前工作目录下无模型";
constexpr wchar_t kNothingSelected[] = L"\t\t请先选择需要导出的工程图\t\t";

constexpr StoredField kNames = {"Export_name", FieldKind::kInput, kContentKey};
constexpr StoredField kSeparator = {"separator", FieldKind::kInput, kContentKey};
// Deliberately the PDF check is not among them: the file's section is spelled "PDFCheck]", and so
// is the button that is set by it, which the dialog does not have.
constexpr StoredField kChecks[] = {
    {"DWGCheck", FieldKind::kCheck, kValueKey},
    {"DXFCheck", FieldKind::kCheck, kValueKey},
    {"STPCheck", FieldKind::kCheck, kValueKey},
    {"IGSCheck", FieldKind::kCheck, kValueKey},
    {"PDFOptionCheck", FieldKind::kCheck, kValueKey},
    {"PDFBlackCheck", FieldKind::kCheck, kValueKey},
    {"MultiSheetCheck", FieldKind::kCheck, kValueKey},
};
constexpr char kPdfCheck[] = "PDFCheck";
constexpr char kMisspelledPdfCheck[] = "PDFCheck]";
constexpr wchar_t kMisspelledPdfSection[] = L"PDFCheck]";

void FillNaming(const DialogView& dialog, StoredFields& fields) {
  const std::wstring path = ConfigPath(kExportFile);
  fields.Fill(dialog, kNames, TryReadSetting(L"drwNames", kContentKey, path));
  fields.Fill(dialog, kSeparator, TryReadSetting(L"Separator", kContentKey, path));
}

void FillChecks(const DialogView& dialog, StoredFields& fields) {
  const std::wstring path = ConfigPath(kExportFile);
  for (const StoredField& check : kChecks) fields.Fill(dialog, check, path);
  const std::wstring pdf = ReadSetting(kMisspelledPdfSection, kValueKey, path);
  if (pdf == kChecked || pdf == kUnchecked) dialog.SetCheck(kMisspelledPdfCheck, pdf == kChecked);
}

// The state of a check by its button's name; nothing when the host does not tell, or when it does
// not show its setting.
std::optional<bool> StateOf(const DialogView& dialog, const StoredFields& fields,
                            std::string_view name) {
  if (name == kPdfCheck) return dialog.CheckState(kPdfCheck);
  for (const StoredField& check : kChecks) {
    if (name != check.component) continue;
    const auto state = fields.Value(dialog, check);
    return state ? std::optional(*state == kChecked) : std::nullopt;
  }
  return std::nullopt;
}

// Nothing when a field cannot be read.
std::optional<ExportWishes> ReadWishes(const DialogView& dialog, const StoredFields& fields) {
  bool is_read = true;
  const auto state = [&](const char* name) {
    const auto read = StateOf(dialog, fields, name);
    is_read = is_read && read.has_value();
    return read.value_or(false);
  };
  ExportWishes wishes;
  for (const ExportFormatRow& row : kExportFormats) {
    wishes.options.formats[static_cast<size_t>(row.format)] = state(row.check);
  }
  wishes.pdf = {state("PDFOptionCheck"), state("PDFBlackCheck")};
  wishes.options.per_sheet = state("MultiSheetCheck");
  const auto names = fields.Value(dialog, kNames);
  const auto separator = fields.Value(dialog, kSeparator);
  if (!is_read || !names || !separator) return std::nullopt;
  wishes.naming = NamingRuleOf(*names, *separator);
  return wishes;
}

void Export(const DialogView& dialog, StoredFields& fields) {
  CommandLog log("QmExport/ApplyBt");
  auto drawings = SelectedDrawings(ExportTable(dialog));
  if (drawings && drawings->empty()) return ShowMessage(kNothingSelected);
  auto wishes = ReadWishes(dialog, fields);
  if (!drawings || !wishes) return ShowMessage(kUnreadableField);
  wishes->drawings = InOrder(std::move(*drawings));
  log.set_status(ExportDrawings(*wishes));
}

void OpenSettings(const DialogView&) {
  OpenInNotepad(kExportFile);
}

// Deliberately the checks stay as they are.
void UpdateSettings(const DialogView& dialog, StoredFields& fields) {
  CommandLog log("QmUpdateIni");
  NoteLeftOut(SetExportColumns(ExportTable(dialog)));
  FillNaming(dialog, fields);
}

void Bind(const Dialog& dialog, StoredFields& fields) {
  dialog.BindButton<&ReverseSelection>("reverseSel");
  dialog.BindButton<&SelectAllOrNone>("selAll");
  dialog.BindButton<&Export>("ApplyBt", fields);
  dialog.BindButton<&OpenSettings>("QmOpenDrwIni");
  dialog.BindButton<&UpdateSettings>("QmUpdateIni", fields);
  dialog.BindButton<&LoadParameters>("QmLoadParams");
  dialog.BindButton<&LoadSheets>("QmLoadDrwInfo");
  dialog.BindRadio<&ListDrawings>("SelDirRadio");
  dialog.BindCloseButton();
  dialog.BindClose();
}

ProError Prepare(const Dialog& dialog, const std::vector<std::wstring>& files,
                 StoredFields& fields) {
  Bind(dialog, fields);
  const DialogTable table = ExportTable(dialog);
  const long long left_out = SetExportColumns(table) + AddFileRows(table, files);
  table.AllowManyRowsAndColumns();
  FillNaming(dialog, fields);
  FillChecks(dialog, fields);
  NoteLeftOut(left_out);
  return PRO_TK_NO_ERROR;
}

}  // namespace

ProError QmExport() {
  const auto files = FilesOfFolder(kDrawingFiles);
  if (files.empty()) {
    ShowShortMessage(kNoDrawings);
    return PRO_TK_E_NOT_FOUND;
  }
  if (FilesOfFolder(kModelFiles).empty()) {
    ShowShortMessage(kNoModels);
    return PRO_TK_E_NOT_FOUND;
  }
  StoredFields fields;
  return RunDialog("QmExport",
                   [&](const Dialog& dialog) { return Prepare(dialog, files, fields); });
}

}  // namespace qm
