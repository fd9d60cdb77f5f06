// QmFrmReplace: another drawing format on every sheet of the working directory's drawings.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmFrmReplace();

}  // namespace qm
