// NewPart: a part by the common procedure.
#include "assembly/create/new_part.h"

#include "assembly/create/new_from_template.h"

namespace qm {

ProError NewPart() {
  return MakeNew(kNewPart);
}

}  // namespace qm
