// Merge features: one part's geometry in another one.
#pragma once

#include "toolkit/selection.h"
#include "toolkit/types.h"

namespace qm {

// Merges the selected part into `target` and regenerates it. A part that the host does not merge is
// passed over with a line in the run log.
void MergePart(ProSolid target, ProSelection source, const wchar_t* feature_name);

}  // namespace qm
