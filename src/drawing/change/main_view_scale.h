// QmUpdateSheetScale and QmUpdateMainViewScale: the sheet and its main view take one scale.
#pragma once

#include "toolkit/types.h"

namespace qm {

// The sheet takes that of its main view.
ProError QmUpdateSheetScale();
// The main view takes that of the sheet.
ProError QmUpdateMainViewScale();

}  // namespace qm
