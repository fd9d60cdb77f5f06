// A copy of a model under a name that the user types.
#pragma once

#include <functional>

#include "assembly/new_model/model_copy.h"

namespace qm {

struct NamePrompt {
  const char* key;         // of the message file
  const wchar_t* offered;  // behind the key's "%0w"; null: the key has none
  int replies;             // how many the user gives; the last one counts
};

// Whether `source`, and what its copy is for, are still there: the user may erase models while he
// is asked. Tells the run log otherwise.
using StillThere = std::function<bool()>;

// Asks again, after a message, until there is a copy. None when the user quits, or the host can no
// longer ask; and, as a failure, when something is not there after a reply.
NewCopy CopyUnderTypedName(ProMdl source, const NamePrompt& prompt, const StillThere& still_there);

}  // namespace qm
