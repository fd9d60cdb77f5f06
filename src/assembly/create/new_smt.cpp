// NewSmt: a sheet-metal part by the common procedure.
#include "assembly/create/new_smt.h"

#include "assembly/create/new_from_template.h"

namespace qm {

ProError NewSmt() {
  return MakeNew(kNewSmt);
}

}  // namespace qm
