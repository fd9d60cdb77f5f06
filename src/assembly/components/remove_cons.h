// QmRemoveCons: every component of the current assembly, at all levels, stays where it is by a fix
// constraint alone, after a dialog that says what this means.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmRemoveCons();

}  // namespace qm
