// Names of the statuses, as they stand in the run log.
#include "toolkit/status.h"

#include "toolkit/status_names.h"

namespace qm {

const char* StatusName(ProError status) {
  for (const StatusRow& row : kStatusNames) {
    if (row.status == status) return row.name;
  }
  return "unknown status";
}

}  // namespace qm
