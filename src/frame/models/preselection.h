// What the user has preselected, read from the host's selection buffer.
#pragma once

#include <optional>

#include "toolkit/owners.h"

namespace qm {

// What is preselected; nothing when the buffer cannot be read. Deliberately a success without
// selections counts as such a failure: hosts answer an empty buffer either way.
std::optional<SelectionArray> ReadPreselection();

// Item of a selection; nothing when the host does not tell.
std::optional<ProModelitem> ItemOf(ProSelection selection);

// Model at the end of a selection's component path; null when there is none.
ProMdl ComponentModelOf(ProSelection selection);

}  // namespace qm
