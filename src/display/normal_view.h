// QmNormalView: turns the view to the nearest orientation along the axes.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmNormalView();

}  // namespace qm
