// QmBackup: copies of the current assembly, of every model that it uses and of their drawings, in
// a folder that the user chooses.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmBackup();

}  // namespace qm
