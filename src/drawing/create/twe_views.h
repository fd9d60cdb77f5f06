// TweViews: a drawing with six or twelve standard views.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError TweViews();

}  // namespace qm
