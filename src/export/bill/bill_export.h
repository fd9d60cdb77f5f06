// QmExportBom: writes the bill's table to a workbook.
#pragma once

#include "frame/dialogs/dialog.h"

namespace qm {

// Button of the bill's dialog: asks for the file, writes it and opens it.
void ExportBill(const DialogView& dialog);

}  // namespace qm
