// SetBendTable: applies a bend table from a file to sheet-metal parts.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError SetBendTable();

}  // namespace qm
