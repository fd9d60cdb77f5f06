// What the two cloning commands share: what is selected, and its copy under a new name.
#pragma once

#include <optional>

#include "assembly/create/clone_rules.h"
#include "assembly/new_model/model_copy.h"
#include "frame/models/preselection.h"
#include "toolkit/model.h"

namespace qm {

struct CloneJob {
  Preselected selected;  // one component
  ProMdl source;
  ProMdlType source_type;
  ProAssembly assembly;  // the active one
  CloneMode mode;
};

// Nothing, after a message or a line in the run log, where nothing can be cloned.
std::optional<CloneJob> PrepareClone();

// The saved copy. `replies` is how many the user gives to one prompt. None, after a message or a
// line in the run log; as a failure when the user has erased meanwhile what it needs.
NewCopy MakeClone(const CloneJob& job, int replies);

}  // namespace qm
