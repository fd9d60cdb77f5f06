// The renaming itself: models, their drawings, and the saving of both.
#pragma once

#include <string>
#include <vector>

#include "export/rename/rename_journal.h"
#include "export/rename/rename_rules.h"
#include "toolkit/model.h"

namespace qm {

// The model of a row; null, after a line in the run log, when it cannot be had. What a workbook
// says is no path.
ProMdl ModelOf(const RenameRow& row);

struct RenameOutcome {
  std::vector<RenameRow> renamed;
  std::vector<RenameRow> left;  // those whose model could not be had or renamed
  long long in_part = 0;        // of the renamed: their drawing was not, or something not saved
};

// Rows that ask for a new name, in their order. One whose model is not renamed is tried once more
// after all others: where erasing acts late, a scratch part may have had the name until then. Rows
// of a workbook may name a model that another row has renamed; they are left.
RenameOutcome RenameModels(const std::vector<RenameRow>& rows, RenameJournal& journal);

// Says which model, or how many, have their new names, but not all that goes with them.
void NoteRenamedInPart(const std::wstring& what);

}  // namespace qm
