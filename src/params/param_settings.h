// The fields of the parameter dialog that survive between uses, in "QmParams.ini".
#pragma once

#include "frame/dialogs/dialog.h"

namespace qm {

// Fills the fields; a missing setting empties its field (and leaves the check button alone).
void LoadParamSettings(const DialogView& dialog);

// Writes the fields. A field that the host does not tell keeps its stored value.
void SaveParamSettings(const DialogView& dialog);

}  // namespace qm
