// QmExportStp: the current model as a STEP file.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmExportStp();

}  // namespace qm
