// QmMdlCount: writes how often each model is placed in the current assembly into a parameter of it.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmMdlCount();

}  // namespace qm
