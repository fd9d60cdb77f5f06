// New models, made as copies of others.
#pragma once

#include <string>

#include "toolkit/model.h"

namespace qm {

// A copy under the name; null, after a line in the run log, where the host makes none.
ProMdl CopyModel(ProMdl source, const std::wstring& name);

// A failure is only logged: the copy stays in session.
void SaveNewModel(ProMdl model);

}  // namespace qm
