// The check of all new names, before anything is renamed.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "export/rename/rename_rules.h"
#include "export/rename/rename_scratch.h"

namespace qm {

// Why the rows cannot be renamed, for the user: what the first wrong one of them gives. Nothing
// when all can. What was looked up stays in session.
std::optional<std::wstring> RefusalOf(const std::vector<RenameRow>& rows, LegalNames& legal);

}  // namespace qm
