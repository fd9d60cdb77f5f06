// Records whose layout nobody knows: whether the host has filled one that was zeroed before.
#pragma once

#include <cstring>

#include "toolkit/status.h"

namespace qm {

// By the whole record: the places of its members are not certain.
template <typename Record>
bool IsFilled(const Record& record) {
  static constexpr Record kUntouched = {};
  return std::memcmp(&record, &kUntouched, sizeof(record)) != 0;
}

// The status, but a failing one for a success that has filled nothing in.
template <typename Record>
ProError FilledStatus(ProError status, const Record& record) {
  return Ok(status) && !IsFilled(record) ? PRO_TK_GENERAL_ERROR : status;
}

}  // namespace qm
