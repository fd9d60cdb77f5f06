// QmExIgs: a class of models, names that are left out and a folder stand in the dialog, which stays
// open after an export.
#include "export/components/ex_igs.h"

#include "export/components/component_export.h"
#include "export/components/component_file_rules.h"
#include "export/files/export_folder.h"
#include "frame/dialogs/dialog.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/text/keyword_filter.h"
#include "toolkit/numbers.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr char kClass[] = "TypeRadio";
constexpr char kKeywords[] = "InputKeyWords";
constexpr char kFolder[] = "IgsDir";
constexpr wchar_t kPrompt[] = L"请选择IGES文件导出位置";
constexpr wchar_t kOwnFolder[] = L"IGS\\";

struct IgesWishes {
  std::string class_name;
  std::wstring keywords;
  std::wstring folder;
};

// Nothing when a field cannot be read. The group always has a selection.
std::optional<IgesWishes> ReadWishes(const DialogView& dialog) {
  auto class_name = dialog.TryRadioValue(kClass);
  auto keywords = dialog.TryInputValue(kKeywords);
  auto folder = dialog.TryInputValue(kFolder);
  if (!class_name || class_name->empty() || !keywords || !folder) return std::nullopt;
  return IgesWishes{std::move(*class_name), std::move(*keywords), std::move(*folder)};
}

std::vector<bool> ChosenOf(const ComponentModels& components, const IgesWishes& wishes) {
  const KeywordFilter keywords(wishes.keywords);
  std::vector<bool> chosen;
  for (const ComponentModel& model : components.models) {
    chosen.push_back(IsOfClass(wishes.class_name, model.is_assembly) &&
                     !keywords.Excludes(model.name));
  }
  return chosen;
}

// An empty field stands for the folder that the dialog proposes.
std::optional<std::wstring> FolderOf(const IgesWishes& wishes) {
  return FolderFromCurrent(wishes.folder.empty() ? kOwnFolder : wishes.folder);
}

void Export(const DialogView& dialog) {
  CommandLog log("QmExIgs/ApplyBt");
  const auto wishes = ReadWishes(dialog);
  if (!wishes) return ShowMessage(kUnreadableField);
  const auto components = OpenComponents();
  if (!components) return;
  const auto folder = FolderOf(*wishes);
  if (!folder) return ShowMessage(kUnreadableField);
  CreateFolder(*folder);
  const ComponentFormat format = {L".igs", L"\tIGES导出已完成\t",
                                  OutputFileWriter(PRO_IGES_3D_FILE)};
  log.set_status(ExportComponents(*components, ChosenOf(*components, *wishes), *folder, format));
}

// A field that does not show it stays as it is, and so does the folder of the next export.
void ShowFolder(const DialogView& dialog, const std::optional<std::wstring>& folder) {
  if (!folder) return;
  const ProError status = dialog.SetInputValue(kFolder, *folder);
  if (!Ok(status)) LogFailure(nullptr, "ProUIInputpanelValueSet", status);
}

void ChooseFolder(const DialogView& dialog) {
  ShowFolder(dialog, AskFolder(kPrompt));
}

}  // namespace

ProError QmExIgs() {
  if (!OpenComponents()) return PRO_TK_E_NOT_FOUND;
  return RunDialog("QmExIgs", [](const Dialog& dialog) {
    dialog.BindButton<&Export>("ApplyBt");
    dialog.BindButton<&ChooseFolder>("ChooseDir");
    dialog.BindCloseButton();
    dialog.BindClose();
    ShowFolder(dialog, FolderFromCurrent(kOwnFolder));
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
