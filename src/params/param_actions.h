// The buttons Add, Update and Delete of the parameter dialog: one parameter, in every model of the
// chosen class. They leave the dialog open and report only what stops them.
#pragma once

#include "frame/dialogs/stored_fields.h"

namespace qm {

// Models that have the parameter already are left as they are.
void AddParameters(const DialogView& dialog, StoredFields& fields);

// Models without the parameter are left as they are.
void UpdateParameters(const DialogView& dialog, StoredFields& fields);

void DeleteParameters(const DialogView& dialog, StoredFields& fields);

}  // namespace qm
