// QmMergeTo: the parts that the user picks merged into the active part.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmMergeTo();

}  // namespace qm
