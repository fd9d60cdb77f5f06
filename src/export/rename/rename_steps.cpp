// Calls of the host in their order, each marked in the journal.
#include "export/rename/rename_steps.h"

#include <utility>

#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "frame/models/retrieve.h"
#include "frame/text/text.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {
namespace {

class RowRenaming {
 public:
  RowRenaming(const RenameRow& row, RenameJournal& journal) : row_(row), journal_(journal) {}

  // False when the model has its old name still; nothing more is done with such a row.
  bool Run() {
    const ProMdl model = ModelOf(row_);
    if (model == nullptr) {
      journal_.Mark(row_, "renamed", PRO_TK_E_NOT_FOUND);
      return false;
    }
    const ProMdl drawing = Drawing();
    if (!Rename(model, "renamed")) return false;
    if (drawing != nullptr) {
      Rename(drawing, "drawing renamed");
      Save(drawing, "drawing saved");
    }
    Save(model, "saved");
    return true;
  }

  // Whether all steps so far were done.
  bool is_whole() const { return is_whole_; }

 private:
  // Null when there is none, which is the rule for most models.
  ProMdl Drawing() {
    auto host_name = RetrievalName::From(row_.old_name);
    ProMdl drawing = nullptr;
    if (!host_name) return nullptr;
    ProError status = ProMdlRetrieve(host_name->name, PRO_MDL_DRAWING, &drawing);
    if (status == PRO_TK_E_NOT_FOUND || (Ok(status) && drawing != nullptr)) return drawing;
    // There is one that cannot be had, or a success that brings nothing.
    if (Ok(status)) status = PRO_TK_GENERAL_ERROR;
    Failed(row_.old_name + L".drw", "ProMdlRetrieve", "drawing found", status);
    return nullptr;
  }

  bool Rename(ProMdl model, const char* what) {
    auto name = HostName::From(row_.new_name);
    return Done("ProMdlRename", what,
                name ? ProMdlRename(model, name->name) : PRO_TK_LINE_TOO_LONG);
  }
  void Save(ProMdl model, const char* what) { Done("ProMdlSave", what, ProMdlSave(model)); }

  bool Done(const char* function, const char* what, ProError status) {
    if (!Ok(status)) return Failed(row_.old_name, function, what, status);
    journal_.Mark(row_, what, status);
    return true;
  }
  bool Failed(const std::wstring& model, const char* function, const char* what, ProError status) {
    journal_.Mark(row_, what, status);
    LogFailure(model, function, status);
    is_whole_ = false;
    return false;
  }

  const RenameRow& row_;
  RenameJournal& journal_;
  bool is_whole_ = true;
};

class Batch {
 public:
  explicit Batch(RenameJournal& journal) : journal_(journal) {}

  // False when the row's model has its old name still, or is not the one that was meant.
  bool Rename(const RenameRow& row) {
    if (moved_.HoldOldNameOf(row)) {
      journal_.Mark(row, "renamed", PRO_TK_E_AMBIGUOUS);
      LogFailure("another row has taken or given the name " + ToUtf8(row.old_name));
      return false;
    }
    RowRenaming renaming(row, journal_);
    if (!renaming.Run()) return false;
    moved_.Add(row);
    outcome_.renamed.push_back(row);
    if (!renaming.is_whole()) ++outcome_.in_part;
    return true;
  }
  void Leave(const RenameRow& row) { outcome_.left.push_back(row); }
  RenameOutcome TakeOutcome() { return std::move(outcome_); }

 private:
  RenameJournal& journal_;
  MovedNames moved_;
  RenameOutcome outcome_;
};

}  // namespace

ProMdl ModelOf(const RenameRow& row) {
  if (CanBeName(row.old_name)) return RetrieveModel(row.old_name, TypeOf(row.type));
  LogEvent("no model can be named " + ToUtf8(row.old_name));
  return nullptr;
}

void NoteRenamedInPart(const std::wstring& what) {
  DisplayNote("Renamed, but not wholly: %0w", what.c_str());
}

RenameOutcome RenameModels(const std::vector<RenameRow>& rows, RenameJournal& journal) {
  Batch batch(journal);
  std::vector<RenameRow> again;
  for (const RenameRow& row : rows) {
    if (!batch.Rename(row)) again.push_back(row);
  }
  for (const RenameRow& row : again) {
    LogEvent("tried once more: " + ToUtf8(row.old_name));
    if (!batch.Rename(row)) batch.Leave(row);
  }
  return batch.TakeOutcome();
}

}  // namespace qm
