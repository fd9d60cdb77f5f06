// New models, made as copies of others.
#pragma once

#include <string>

#include "toolkit/model.h"

namespace qm {

struct NewCopy {
  ProMdl model = nullptr;             // null: there is none, ...
  ProError status = PRO_TK_NO_ERROR;  // ... and this is the command's answer
};

// A copy under the name; null, after a line in the run log, where the host makes none.
ProMdl CopyModel(ProMdl source, const std::wstring& name);

// A failure is only logged: the copy stays in session.
void SaveNewModel(ProMdl model);

}  // namespace qm
