// QmMdlNameCopy: copies a model's name to the clipboard.
#pragma once

#include "toolkit/types.h"

namespace qm {

// The current part's name; in an assembly the name of the one preselected or picked component.
ProError QmMdlNameCopy();

}  // namespace qm
