// QmUpdateSheetScale: the sheet takes the scale of its main view.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmUpdateSheetScale();

}  // namespace qm
