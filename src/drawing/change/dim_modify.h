// QmDimModify: the palette that puts prefixes, suffixes and tolerances on dimensions.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmDimModify();

}  // namespace qm
