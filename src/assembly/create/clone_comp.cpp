// CloneComp: the copy lands at the assembly's origin, where the host's own dialog takes over.
#include "assembly/create/clone_comp.h"

#include <string>

#include "assembly/create/clone.h"
#include "assembly/new_model/new_component.h"
#include "frame/messages/run_log.h"
#include "toolkit/status.h"

namespace qm {

ProError CloneComp() {
  const auto job = PrepareClone();
  const NewCopy copy = job ? MakeClone(*job, 1) : NewCopy();
  if (copy.model == nullptr) return copy.status;
  auto component = AssembleAtOrigin(job->assembly, copy.model);
  if (!component) return PRO_TK_NO_ERROR;
  const ProError placed = ProAsmcompConstrRedefUI(&*component);
  if (placed == PRO_TK_USER_ABORT) {
    LogOutcome("the user has not placed the copy");
  } else if (!Ok(placed)) {
    // Without its name: the user may have erased the copy in the dialog.
    LogFailure(std::string("the copy is not placed: ProAsmcompConstrRedefUI answered ") +
               StatusName(placed));
  }
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
