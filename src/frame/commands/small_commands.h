// Working directory, the drawing of a model, and a probe of the session.
#pragma once

#include "toolkit/types.h"

namespace qm {

// Opens the working directory in Windows Explorer.
ProError QmOpenDir();

// Makes the current model's folder the working directory.
ProError QmSetDirectory();

// Opens the drawing that has the preselected model's name; only in the popup menu.
ProError QmOpenDrw();

// Fetches the current model and does nothing else.
ProError ForTest();

}  // namespace qm
