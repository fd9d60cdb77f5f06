// BatchColor: gives every model of an assembly a colour of its own.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError BatchColor();

}  // namespace qm
