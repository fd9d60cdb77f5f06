// The buttons Add, Update and Delete of the parameter dialog: one parameter, in every model of the
// chosen class. They leave the dialog open and report only what stops them.
#pragma once

#include "frame/dialogs/dialog.h"

namespace qm {

// Models that have the parameter already are left as they are.
void AddParameters(const DialogView& dialog);

// Models without the parameter are left as they are.
void UpdateParameters(const DialogView& dialog);

void DeleteParameters(const DialogView& dialog);

}  // namespace qm
