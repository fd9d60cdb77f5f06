// QmBom: the bill of materials of the current assembly, as a summary or by levels, and its export
// to a workbook.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmBom();

}  // namespace qm
