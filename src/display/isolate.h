// QmIsolate: shows only the components that the user has preselected.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmIsolate();

}  // namespace qm
