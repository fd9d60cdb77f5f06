// Whether a call that answered success has filled its record in: hosts may claim more than they do,
// and zeroes taken for an answer would go back to them.
#pragma once

#include <cstring>
#include <type_traits>

#include "toolkit/status.h"

namespace qm {

// By the whole record, which was zeroes before: the places of its members are not certain.
template <typename Record>
bool IsFilled(const Record& record) {
  static_assert(std::is_trivially_copyable_v<Record>);
  static constexpr Record kUntouched = {};
  return std::memcmp(&record, &kUntouched, sizeof(record)) != 0;
}

// The status of such a call; a success that left the record as it was is a failure.
template <typename Record>
ProError FilledStatus(ProError status, const Record& record) {
  return Ok(status) && !IsFilled(record) ? PRO_TK_GENERAL_ERROR : status;
}

}  // namespace qm
