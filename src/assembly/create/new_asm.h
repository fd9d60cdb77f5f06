// NewAsm: a new subassembly from the user's start template, named after the assembly and put into
// it.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError NewAsm();

}  // namespace qm
