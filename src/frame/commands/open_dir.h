// QmOpenDir: opens the working directory in Windows Explorer.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmOpenDir();

}  // namespace qm
