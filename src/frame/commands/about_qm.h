// AboutQm: the dialog that says what this toolbox is.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError AboutQm();

}  // namespace qm
