// Calls of the host in their order, each marked in the journal.
#include "export/rename/rename_steps.h"

#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "frame/models/retrieve.h"
#include "frame/text/text.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// Null when there is none, which is the rule for most models.
ProMdl DrawingOf(const std::wstring& name) {
  auto host_name = RetrievalName::From(name);
  ProMdl drawing = nullptr;
  if (!host_name) return nullptr;
  const ProError status = ProMdlRetrieve(host_name->name, PRO_MDL_DRAWING, &drawing);
  if (Ok(status) && drawing != nullptr) return drawing;
  if (status != PRO_TK_E_NOT_FOUND) LogFailure(name + L".drw", "ProMdlRetrieve", status);
  return nullptr;
}

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
    const ProMdl drawing = DrawingOf(row_.old_name);
    if (!Rename(model, "renamed")) return false;
    if (drawing != nullptr) {
      Rename(drawing, "drawing renamed");
      Save(drawing, "drawing saved");
    }
    Save(model, "saved");
    return true;
  }

 private:
  bool Rename(ProMdl model, const char* what) {
    auto name = HostName::From(row_.new_name);
    return Done("ProMdlRename", what,
                name ? ProMdlRename(model, name->name) : PRO_TK_LINE_TOO_LONG);
  }
  void Save(ProMdl model, const char* what) { Done("ProMdlSave", what, ProMdlSave(model)); }

  bool Done(const char* function, const char* what, ProError status) {
    journal_.Mark(row_, what, status);
    if (!Ok(status)) LogFailure(row_.old_name, function, status);
    return Ok(status);
  }

  const RenameRow& row_;
  RenameJournal& journal_;
};

}  // namespace

ProMdl ModelOf(const RenameRow& row) {
  if (CanBeName(row.old_name)) return RetrieveModel(row.old_name, TypeOf(row.type));
  LogEvent("no model can be named " + ToUtf8(row.old_name));
  return nullptr;
}

RenameOutcome RenameModels(const std::vector<RenameRow>& rows, RenameJournal& journal) {
  RenameOutcome outcome;
  std::vector<RenameRow> again;
  for (const RenameRow& row : rows) {
    (RowRenaming(row, journal).Run() ? outcome.renamed : again).push_back(row);
  }
  for (const RenameRow& row : again) {
    LogEvent("tried once more: " + ToUtf8(row.old_name));
    (RowRenaming(row, journal).Run() ? outcome.renamed : outcome.left).push_back(row);
  }
  return outcome;
}

}  // namespace qm
