// The start of a batch of renamings: check, journal, renaming, and what the user is told.
#pragma once

#include "export/rename/rename_scratch.h"
#include "export/rename/rename_table.h"
#include "frame/models/shown_model.h"

namespace qm {

// What the dialog remembers between presses.
struct RenameMemory {
  ShownModel shown;
  LegalNames legal;
};

void RenameListed(const RenameTable& table, RenameMemory& memory);

}  // namespace qm
