// QmExport: the dialog that exports the drawings of the working directory, or those of the current
// model, to files of other programs.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmExport();

}  // namespace qm
