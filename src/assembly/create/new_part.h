// NewPart: a new part from the user's start template, named after the assembly and put into it.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError NewPart();

}  // namespace qm
