// QmRename: the dialog with the list of models and their new names.
#include "export/rename/rename.h"

#include "export/rename/rename_action.h"
#include "export/rename/rename_table.h"
#include "export/spreadsheet/dispatch.h"
#include "export/spreadsheet/excel_reader.h"
#include "export/spreadsheet/excel_writer.h"
#include "export/spreadsheet/workbook_file.h"
#include "export/spreadsheet/workbook_title.h"
#include "frame/dialogs/file_choice.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/settings/config.h"
#include "frame/settings/notepad.h"

namespace qm {
namespace {

constexpr wchar_t kSettingsFile[] = L"QmRename.ini";
constexpr char kFilter[] = "RenameFilter";

std::wstring FilterOfFile() {
  const auto filter = TryReadSetting(L"RenameFilter", kContentKey, ConfigPath(kSettingsFile));
  if (!filter) LogEvent("the prefixes that are not listed cannot be read from their settings file");
  return NormalisedFilter(filter.value_or(std::wstring()));
}

void ShowFilter(const DialogView& dialog, const std::wstring& filter) {
  const ProError status = dialog.SetInputValue(kFilter, filter);
  if (!Ok(status)) LogFailure(nullptr, "ProUIInputpanelValueSet", status);
}

void OpenSettings(const DialogView&) {
  OpenInNotepad(kSettingsFile);
}

void UpdateList(const DialogView& dialog) {
  CommandLog log("UpdateRenameIni");
  const auto assembly = CurrentAssembly();
  if (!assembly) return ShowShortMessage(kAssembliesOnly);
  ShowFilter(dialog, FilterOfFile());
  const RenameTable table(dialog);
  if (!table.Clear()) return;
  // Deliberately what the field shows, which is all that the user can know of.
  const auto filter = dialog.TryInputValue(kFilter);
  if (!filter) return ShowMessage(kUnreadableField);
  table.List(*assembly, PrefixFilter(NormalisedFilter(*filter)));
}

void LoadList(const DialogView& dialog) {
  CommandLog log("QmLoadTab");
  const RenameTable table(dialog);
  // Before the choice: deliberately the list stays empty when the user cancels.
  if (!table.Clear()) return;
  const ComScope com;
  const auto path = ChooseWorkbookToRead();
  if (!path) return LogOutcome("cancelled");
  const auto sheet = ReadWorkbook(*path, kWorkbookColumns);
  if (sheet) table.Load(RowsOfWorkbook(*sheet));
}

void ExportList(const DialogView& dialog) {
  CommandLog log("QmExportTab");
  const auto title = TitleOfCurrentModel(L" 重命名");
  if (!title) return;
  const ComScope com;
  const auto path = PickFileToWrite(L"导出表格", L"*.xls", *title);
  if (!path) return LogOutcome("cancelled");
  if (!IsFreeToWrite(*path)) return;
  const auto table = RenameTable(dialog).ForWorkbook(*title);
  if (!table) return ShowMessage(kUnreadableField);
  LogCount("rows", static_cast<long long>(table->rows.size()));
  if (WriteWorkbook(*table, *path)) OpenWorkbookFile(*path);
}

void StartRename(const DialogView& dialog, RenameMemory& memory) {
  CommandLog log("StartRename");
  RenameListed(RenameTable(dialog), memory);
}

void Bind(const Dialog& dialog, RenameMemory& memory) {
  dialog.BindButton<&StartRename>("StartRename", memory);
  dialog.BindButton<&LoadList>("QmLoadTab");
  dialog.BindButton<&ExportList>("QmExportTab");
  dialog.BindButton<&OpenSettings>("OpenRenameIni");
  dialog.BindButton<&UpdateList>("UpdateRenameIni");
  dialog.BindClose();
  DialogTable(dialog, RenameTable::kComponent).SetSelectionPolicy(PROUISELPOLICY_SINGLE);
  dialog.BindCellFocus<&ShowFocusedRow>(RenameTable::kComponent);
}

ProError Prepare(const Dialog& dialog, RenameMemory& memory) {
  Bind(dialog, memory);
  const auto assembly = AssemblyOf(memory.shown.model());
  if (!assembly) {
    ShowShortMessage(kAssembliesOnly);
    return PRO_TK_BAD_CONTEXT;
  }
  const std::wstring filter = FilterOfFile();
  ShowFilter(dialog, filter);
  RenameTable(dialog).List(*assembly, PrefixFilter(filter));
  return PRO_TK_NO_ERROR;
}

}  // namespace

ProError QmRename() {
  RenameMemory memory{ShownModel(CurrentModelItself()), {}};
  return RunDialog(
      "QmRename", [&](const Dialog& dialog) { return Prepare(dialog, memory); },
      [&] { memory.shown.ShowAgain(); });
}

}  // namespace qm
