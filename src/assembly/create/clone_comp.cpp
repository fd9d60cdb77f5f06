// CloneComp: the copy lands at the assembly's origin, where the host's own dialog takes over.
#include "assembly/create/clone_comp.h"

#include "assembly/create/clone.h"
#include "assembly/new_model/new_component.h"
#include "frame/messages/run_log.h"
#include "toolkit/status.h"

namespace qm {

ProError CloneComp() {
  const auto job = PrepareClone();
  const ProMdl copy = job ? MakeClone(*job, 1) : nullptr;
  if (copy == nullptr) return PRO_TK_NO_ERROR;
  auto component = AssembleAtOrigin(job->assembly, copy);
  if (!component) return PRO_TK_NO_ERROR;
  const ProError placed = ProAsmcompConstrRedefUI(&*component);
  if (placed == PRO_TK_USER_ABORT) {
    LogOutcome("the user has not placed the copy");
  } else if (!Ok(placed)) {
    LogFailure(copy, "ProAsmcompConstrRedefUI", placed);
  }
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
