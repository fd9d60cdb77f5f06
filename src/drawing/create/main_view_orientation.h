// How a model is turned for the main view of its drawing.
#pragma once

#include "frame/geometry/matrix_rules.h"
#include "toolkit/model.h"

namespace qm {

// Unit rows and no shift. By the model's extents, widest across, then highest; its window shows
// afterwards what it showed before, zoom included, and is not touched where the host could not
// bring that back. With `as_shown` as the window shows the model, which is snapped to the axes
// first; a model that no window shows is turned by its extents all the same.
Matrix MainViewOrientation(ProMdl model, bool as_shown);

}  // namespace qm
