// Records whose layout nobody knows: whether the host has filled one that was zeroed before.
#pragma once

#include <cstring>

#include "toolkit/status.h"

namespace qm {

// The status, but a failing one for a success that has filled nothing in.
template <typename Record>
ProError FilledStatus(ProError status, const Record& record) {
  static constexpr Record kUntouched = {};
  const bool is_filled = std::memcmp(&record, &kUntouched, sizeof(record)) != 0;
  return Ok(status) && !is_filled ? PRO_TK_GENERAL_ERROR : status;
}

}  // namespace qm
