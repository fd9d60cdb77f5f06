// Fields, buttons and the list of drawings.
#include "workbench/bench/bench_folder_user.h"

#include <stdexcept>

namespace wb {
namespace {

void RequireDone(bool is_done, const char* what) {
  if (!is_done) throw std::runtime_error(what);
}

void PressButton(LiveDialog& dialog, const char* button) {
  RequireDone(dialog.state.UserPress(button).Done() && dialog.Fire(button, kActivateEvent), button);
}

void ExportAll(LiveDialog& dialog) {
  for (const char* check : {"DXFCheck", "PDFCheck", "STPCheck", "IGSCheck", "MultiSheetCheck"}) {
    RequireDone(dialog.state.UserToggle(check).Done(), "no check of an export");
  }
  PressButton(dialog, "selAll");
  PressButton(dialog, "ApplyBt");
}

const TableModel& TableOf(LiveDialog& dialog, const char* name) {
  TableModel* table = nullptr;
  RequireDone(dialog.state.Find(FieldKind::kTable, name, &table) == UiStatus::kOk, name);
  return *table;
}

int LoadedRows(LiveDialog& dialog) {
  const TableModel& table = TableOf(dialog, "drw_list");
  int loaded = 0;
  for (const std::string& row : table.RowNames()) {
    std::string sheets;
    std::string parameter;
    table.GetLabel(row, "sheets", &sheets);
    table.GetLabel(row, "param1", &parameter);
    if (sheets == "2" && !parameter.empty()) ++loaded;
  }
  return loaded;
}

void RenameAll(LiveDialog& dialog) {
  for (const std::string& row : TableOf(dialog, "mdl_list").RowNames()) {
    const UserOutcome typed = dialog.state.UserSetField("input" + row, kRenamed + row);
    RequireDone(typed.Done(), "no field for a new name");
  }
  PressButton(dialog, "StartRename");
}

}  // namespace

void FolderUser::ListComponents(LiveDialog& dialog) {
  constexpr char kSource[] = "SelDirRadio";
  RequireDone(dialog.state.UserSelect(kSource, {"curMdl"}).Done(), kSource);
  RequireDone(dialog.Fire(kSource, kSelectEvent), kSource);
  PressButton(dialog, "QmLoadDrwInfo");
  PressButton(dialog, "QmLoadParams");
  loaded_ = LoadedRows(dialog);
}

void FolderUser::WorkDialog(LiveDialog& dialog) {
  if (dialog.name == "QmExport" && has_components_) {
    ListComponents(dialog);
  } else if (dialog.name == "QmExport") {
    ExportAll(dialog);
  } else if (dialog.name == "QmRename") {
    RenameAll(dialog);
  } else {
    PressButton(dialog, dialog.name == "QmExIgs" ? "ApplyBt" : "QmFrmReplaceAct");
  }
  RequireDone(dialog.Fire("", kCloseEvent), "a dialog cannot be closed");
}

std::optional<std::string> FolderUser::ChooseFile(const FileRequest& request) {
  return request.asked_by == "ProDirectoryChoose" ? folder_ : format_;
}

int FolderUser::AnswerMessageBox(const MessageBox& box) {
  last_box_ = box.text;
  return 1;
}

}  // namespace wb
