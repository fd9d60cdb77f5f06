// NewAsm: a subassembly by the common procedure.
#include "assembly/create/new_asm.h"

#include "assembly/create/new_from_template.h"

namespace qm {

ProError NewAsm() {
  return MakeNew(kNewAsm);
}

}  // namespace qm
