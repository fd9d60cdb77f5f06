// SurfTransparent: makes single surfaces clear, or opaque again.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError SurfTransparent();

}  // namespace qm
