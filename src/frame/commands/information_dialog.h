// Dialogs that only show something: the commands about the toolbox itself.
#pragma once

#include "toolkit/types.h"

namespace qm {

// Shows the dialog of the resource `name` until the user closes it.
ProError ShowInformationDialog(const char* name);

}  // namespace qm
