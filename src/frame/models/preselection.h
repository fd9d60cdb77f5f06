// What the user has preselected, read from the host's selection buffer.
#pragma once

#include <optional>

#include "toolkit/owners.h"

namespace qm {

// Item of a selection; nothing when the host does not tell.
std::optional<ProModelitem> ItemOf(ProSelection selection);

// Model at the end of a selection's component path; null when there is none.
ProMdl ComponentModelOf(ProSelection selection);

}  // namespace qm
