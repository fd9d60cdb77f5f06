// QmUpdateMainViewScale: the main view takes the scale of its sheet.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmUpdateMainViewScale();

}  // namespace qm
