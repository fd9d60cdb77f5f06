// The batch from its rows to the closing message.
#include "export/rename/rename_action.h"

#include <algorithm>

#include "export/rename/rename_check.h"
#include "export/rename/rename_option.h"
#include "export/rename/rename_steps.h"
#include "frame/folders/model_folder.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"

namespace qm {
namespace {

constexpr wchar_t kNoRows[] = L"\t\t重命名表格为空\t\t";
constexpr wchar_t kDone[] = L"\t批量重命名操作已完成\t";

// Rows that ask for a new name.
std::vector<RenameRow> ToRename(const std::vector<RenameRow>& rows) {
  std::vector<RenameRow> changed;
  std::ranges::copy_if(rows, std::back_inserter(changed),
                       [](const RenameRow& row) { return Judge(row) != NewName::kUnchanged; });
  return changed;
}

// Where the models lie; blank where nobody tells.
std::vector<std::wstring> FoldersOf(const std::vector<RenameRow>& rows) {
  std::vector<std::wstring> folders;
  for (const RenameRow& row : rows) {
    const ProMdl model = ModelOf(row);
    std::optional<std::wstring> folder;
    if (model != nullptr) folder = FolderOf(model);
    folders.push_back(std::move(folder).value_or(std::wstring()));
  }
  return folders;
}

// The journal is there for the user's next look, the other note for the next save.
void TellWhatIsLeftToDo(const RenameJournal& journal) {
  DisplayNote("Assemblies remember the new names only once they are saved");
  if (journal.is_whole()) {
    DisplayNote("The renaming is recorded in %0w", journal.path().c_str());
  } else {
    DisplayNote("The renaming could not be recorded");
  }
}

// Why the rows cannot be renamed; nothing when they can. They are read once more, since looking for
// names may have let the user in.
std::optional<std::wstring> WhyNot(const RenameTable& table, std::vector<RenameRow>* rows,
                                   LegalNames& legal) {
  if (auto refusal = RefusalOf(*rows, legal)) return refusal;
  auto again = table.Read();
  if (!again) return kUnreadableField;
  *rows = std::move(*again);
  return RefusalAtRename(*rows);
}

void Rename(const std::vector<RenameRow>& rows, const RenameTable& table, RenameMemory& memory) {
  if (rows.empty()) return;
  RenameJournal journal;
  journal.Begin(rows, FoldersOf(rows));
  const RenameOutcome outcome = RenameModels(rows, journal);
  for (const RenameRow& row : outcome.renamed) {
    memory.shown.Renamed(TypeOf(row.type), row.old_name, row.new_name);
    table.ShowRenamed(row);
  }
  const auto renamed = static_cast<long long>(outcome.renamed.size());
  const auto left = static_cast<long long>(outcome.left.size());
  journal.End(renamed, left);
  LogCount("renamed", renamed);
  NoteLeftOut(left);
  if (outcome.in_part > 0) NoteRenamedInPart(std::to_wstring(outcome.in_part));
  TellWhatIsLeftToDo(journal);
}

}  // namespace

void RenameListed(const RenameTable& table, RenameMemory& memory) {
  auto rows = table.Read();
  if (!rows) return ShowMessage(kUnreadableField);
  if (rows->empty()) return ShowMessage(kNoRows);
  LogCount("rows", static_cast<long long>(rows->size()));
  StoreBackOption option;
  const auto refusal = WhyNot(table, &*rows, memory.legal);
  if (refusal) {
    // Deliberately not put back: models that are saved then go where a batch would have put them,
    // as they always have.
    option.Leave();
    return ShowMessage(*refusal);
  }
  Rename(ToRename(*rows), table, memory);
  option.Restore();
  ShowMessage(kDone);
}

}  // namespace qm
