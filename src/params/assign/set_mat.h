// SetMat: gives parts a material from a file.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError SetMat();

}  // namespace qm
