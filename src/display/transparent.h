// QmTransparent: makes parts see-through, or opaque again.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmTransparent();

}  // namespace qm
