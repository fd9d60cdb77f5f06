// The button QmOutline of the parameter dialog: writes each model's outer sizes into a string
// parameter.
#pragma once

#include "frame/dialogs/stored_fields.h"

namespace qm {

// Each model is measured from its own surfaces. An assembly usually has none, and a model without
// surfaces is left alone: the sizes of an assembly's components are not combined.
void WriteOutlines(const DialogView& dialog, StoredFields& fields);

}  // namespace qm
