// QmMdlRename: one model and its drawing get the name that the user types.
#include "export/rename/mdl_rename.h"

#include <optional>
#include <string>

#include "export/rename/rename_check.h"
#include "export/rename/rename_option.h"
#include "export/rename/rename_steps.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/model_name.h"
#include "frame/models/pointed_model.h"
#include "frame/text/fixed_text.h"
#include "frame/text/letter_case.h"
#include "toolkit/message.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// Longer than any name may be, so that one that is too long is refused and not cut.
constexpr int kLongestReply = PRO_LINE_SIZE - 2;

// Nothing when the user quits.
std::optional<std::wstring> AskForName(const std::wstring& old_name) {
  DisplayNote("USER Enter a new name:|||%0w", old_name.c_str());
  ProLine reply = {};
  if (!Ok(ProMessageStringRead(kLongestReply, reply))) return std::nullopt;
  return Trimmed(FixedText(reply));
}

// The model as the one row of a list; nothing when the host does not tell what it is.
std::optional<RenameRow> RowOf(ProMdl model) {
  ProMdlType type = PRO_MDL_UNUSED;
  const auto name = ModelName(model);
  if (!name || !Ok(ProMdlTypeGet(model, &type)) || *TypeWord(type) == L'\0') return std::nullopt;
  return RenameRow{L"1", *name, TypeWord(type), {}};
}

// The name that was found legal last and could not be given, in lower case. It is not tried again:
// where erasing acts late, the trial's part had it until the host had control back, and would have
// it again.
constinit ProName tried_name = {};

LegalNames NamesTried() {
  LegalNames names;
  if (tried_name[0] != L'\0') names.insert(tried_name);
  return names;
}

void Remember(const std::wstring& name) {
  if (!FillFixedText(name, tried_name)) tried_name[0] = L'\0';
}

// What came of it; nothing when the model has its old name still.
std::optional<RenameOutcome> Rename(const RenameRow& row) {
  const std::vector<RenameRow> rows = {row};
  LegalNames legal = NamesTried();
  const StoreBackOption option;
  if (const auto refusal = RefusalOf(rows, legal)) {
    ShowMessage(*refusal);
    return std::nullopt;
  }
  RenameJournal no_journal;
  RenameOutcome outcome = RenameModels(rows, no_journal);
  const std::wstring name = LowerCased(row.new_name);
  const bool is_renamed = !outcome.renamed.empty();
  Remember(!is_renamed && legal.contains(name) ? name : std::wstring());
  if (is_renamed) return outcome;
  DisplayNote("%0w could not be renamed", row.old_name.c_str());
  LogOutcome("the model was not renamed");
  return std::nullopt;
}

void TellRenamed(const RenameRow& row, const RenameOutcome& outcome) {
  const std::wstring names = row.old_name + L" -> " + row.new_name;
  if (outcome.in_part > 0) return NoteRenamedInPart(names);
  DisplayNote("Model renamed: %0w", names.c_str());
}

void RefreshTree() {
  const auto current = CurrentModelItself();
  if (current) ProTreetoolRefresh(current->model);
}

}  // namespace

ProError QmMdlRename() {
  const ProMdl model = PointedModel("Please select a part or an assembly for renaming");
  if (model == nullptr) return PRO_TK_E_NOT_FOUND;
  auto row = RowOf(model);
  if (!row) return PRO_TK_E_NOT_FOUND;
  const auto new_name = AskForName(row->old_name);
  if (!new_name) return PRO_TK_USER_ABORT;
  row->new_name = *new_name;
  if (Judge(*row) == NewName::kUnchanged) {
    LogOutcome("the name stays");
    return PRO_TK_NO_ERROR;
  }
  const auto outcome = Rename(*row);
  if (!outcome) return PRO_TK_GENERAL_ERROR;
  RefreshTree();
  TellRenamed(*row, *outcome);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
