// The button QmSheetSize of the parameter dialog: writes the sheet size of each model's drawing
// into a string parameter.
#pragma once

#include "frame/dialogs/stored_fields.h"

namespace qm {

// The drawing is the one of the model's name, its sheet the first. A model without such a drawing
// is left alone. Drawings that are loaded for this stay in the session.
void WriteSheetSizes(const DialogView& dialog, StoredFields& fields);

}  // namespace qm
