// QmBackup: the folder, the models, and one backup for each of them and for its drawing. The host
// may write models again with the assemblies that use them; each is asked for once.
#include "assembly/components/backup.h"

#include <iterator>
#include <optional>
#include <string>

#include "frame/folders/known_folders.h"
#include "frame/folders/model_folder.h"
#include "frame/folders/working_directory.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/host_name.h"
#include "frame/models/model_name.h"
#include "frame/models/opening.h"
#include "frame/models/target_list.h"
#include "frame/text/fixed_text.h"
#include "frame/text/text.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kNoAssembly[] = L"当前环境不是组件/制造，无法进行备份操作";
constexpr wchar_t kNoComponents[] = L"当前模型中没有子零件/组件";
constexpr wchar_t kChooserTitle[] = L"请选择模型备份目录";

struct Tally {
  int models = 0;
  int drawings = 0;
  long long failed = 0;
};

// Nothing when the user cancels.
std::optional<std::wstring> AskFolder() {
  std::wstring title = kChooserTitle;
  ProPath chosen = {};
  const ProError status = ProDirectoryChoose(title.data(), nullptr, nullptr, nullptr, chosen);
  const std::wstring folder(FixedText(chosen));
  if (Ok(status) && !folder.empty()) return folder;
  if (!Ok(status) && status != PRO_TK_USER_ABORT) {
    LogFailure(std::string("ProDirectoryChoose answered ") + StatusName(status));
  }
  LogOutcome("nothing backed up, no folder");
  return std::nullopt;
}

class BackupRun {
 public:
  // A component whose model nobody can tell is a model that is not in the folder.
  BackupRun(std::wstring folder, WorkingDirectory* directory, long long unknown)
      : folder_(std::move(folder)), directory_(*directory) {
    tally_.failed = unknown;
  }

  void BackUpWithDrawing(ProMdl model) {
    const auto name = ModelName(model);
    if (!name) {
      ++tally_.failed;
      return;
    }
    Write(model, *name, *name, &tally_.models);
    // Drawings count only where they lie in the working directory.
    if (!directory_.Return()) {
      LogFailure(*name, "the search for its drawing without the working directory",
                 PRO_TK_INVALID_DIR);
      ++tally_.failed;
      return;
    }
    const ProMdl drawing = DrawingOf(*name);
    if (drawing != nullptr && LiesHere(drawing, *name)) {
      Write(drawing, *name, L"drawing " + *name, &tally_.drawings);
    }
  }

  const Tally& tally() const { return tally_; }

 private:
  // `logged` is what the run log calls it: a model and its drawing have one name.
  void Write(ProMdl model, const std::wstring& name, const std::wstring& logged, int* written) {
    ProMdldata data = {};
    const char* function = "ProMdlDataGet";
    ProError status = ProMdlDataGet(model, &data);
    if (Ok(status) && !PointToFolder(name, folder_, &data)) {
      function = "ProMdlDataGet, whose record is in an order that is not known,";
      status = PRO_TK_INVALID_ITEM;
    } else if (Ok(status)) {
      function = "ProMdlBackup";
      status = ProMdlBackup(model, &data);
    }
    if (Ok(status)) {
      ++*written;
      LogEvent(ToUtf8(logged) + " backed up to " + ToUtf8(folder_));
    } else {
      ++tally_.failed;
      LogFailure(logged, function, status);
    }
  }

  // Most models have none.
  ProMdl DrawingOf(const std::wstring& name) {
    auto host_name = RetrievalName::From(name);
    ProMdl drawing = nullptr;
    const ProError status = host_name ? ProMdlRetrieve(host_name->name, PRO_MDL_DRAWING, &drawing)
                                      : PRO_TK_LINE_TOO_LONG;
    if (Ok(status) && drawing != nullptr) return drawing;
    if (status != PRO_TK_E_NOT_FOUND) {
      ++tally_.failed;
      LogFailure(name, "ProMdlRetrieve of the drawing", status);
    }
    return nullptr;
  }

  // The host finds drawings in session first, wherever they came from.
  bool LiesHere(ProMdl drawing, const std::wstring& name) const {
    const auto folder = FolderOf(drawing);
    if (!folder || directory_.MayBe(*folder)) return true;
    LogEvent("drawing " + ToUtf8(name) + " not backed up: it lies in " + ToUtf8(*folder));
    return false;
  }

  const std::wstring folder_;
  WorkingDirectory& directory_;
  Tally tally_;
};

std::wstring Result(const Tally& tally) {
  return L"\t图纸备份操作已完成：模型" + std::to_wstring(tally.models) + L"个，工程图" +
         std::to_wstring(tally.drawings) + L"个，失败" + std::to_wstring(tally.failed) + L"个\t";
}

}  // namespace

ProError QmBackup() {
  WorkingDirectory directory;
  const auto root = CurrentAssembly();
  if (!root) {
    ShowMessage(kNoAssembly);
    return PRO_TK_NO_ERROR;
  }
  const auto folder = AskFolder();
  if (!folder) return PRO_TK_USER_ABORT;
  // The record says where a model goes; where the folder cannot be entered its backups will tell.
  directory.Enter(*folder);
  std::optional<TargetList> targets;
  std::optional<int> count;
  if (IsStillCurrent(*root)) {
    targets = CollectTargets({*root, PRO_MDL_ASSEMBLY}, "AsmAndPart");
    if (targets) count = targets->component_count;
  } else {
    count = 0;
  }
  // Before the user reads that nothing is done.
  if (count.value_or(0) == 0) directory.Return();
  if (!HasComponents(count, kNoComponents)) {
    if (targets) NoteLeftOut(targets->left_out);
    return PRO_TK_NO_ERROR;
  }
  LogCount("components", *count);
  BackupRun run(*folder, &directory, targets->left_out);
  for (const ProMdl model : targets->models) run.BackUpWithDrawing(model);
  directory.Return();
  ShowMessage(Result(run.tally()));
  NoteLeftOut(targets->left_out);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
