// The folder that a model's file lies in.
#pragma once

#include <optional>
#include <string>

#include "toolkit/model.h"

namespace qm {

// As the host's record of the model says it; where the record has an order that is not known, of
// the file that the model came from. No value, after a line in the run log, when neither tells.
std::optional<std::wstring> FolderOf(ProMdl model);

}  // namespace qm
