// QmDrwScaleCheck: finds general views whose scale is not that of their sheet.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmDrwScaleCheck();

}  // namespace qm
