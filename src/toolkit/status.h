// Statuses of host calls: the test for success, and names for the run log.
#pragma once

#include "toolkit/numbers.h"

namespace qm {

constexpr bool Ok(ProError status) {
  return status == PRO_TK_NO_ERROR;
}

// The host's own name of a status, for example "PRO_TK_E_NOT_FOUND"; "unknown status" for a number
// that is not in the table.
const char* StatusName(ProError status);

}  // namespace qm
