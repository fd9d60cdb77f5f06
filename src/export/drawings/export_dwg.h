// QmExportDwg: the sheets of the current drawing as DWG files.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmExportDwg();

}  // namespace qm
