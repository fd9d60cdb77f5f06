// QmExportPdf: the current drawing as PDF files.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmExportPdf();

}  // namespace qm
