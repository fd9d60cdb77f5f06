// QmExIgs: components of the current assembly as IGES files, by a dialog.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmExIgs();

}  // namespace qm
