// Preselection by boxes that the user draws, for the host's next command.
#pragma once

#include "toolkit/types.h"

namespace qm {

// Replaces the selection buffer by what the user picks; leaves it when the selection fails.
// `filter` is the host's word for the kind of items.
ProError PreselectByBox(const char* filter);

}  // namespace qm
