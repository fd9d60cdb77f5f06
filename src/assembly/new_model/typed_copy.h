// A copy of a model under a name that the user types.
#pragma once

#include "toolkit/model.h"

namespace qm {

struct NamePrompt {
  const char* key;         // of the message file
  const wchar_t* offered;  // behind the key's "%0w"; null: the key has none
  int replies;             // how many the user gives; the last one counts
};

// Asks again, after a message, until there is a copy. Null when the user quits, or the host can no
// longer ask.
ProMdl CopyUnderTypedName(ProMdl source, const NamePrompt& prompt);

}  // namespace qm
