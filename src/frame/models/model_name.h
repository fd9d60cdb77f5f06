// The name of a model.
#pragma once

#include <optional>
#include <string>

#include "toolkit/model.h"

namespace qm {

// Nothing, with a line in the run log, when the host does not tell.
std::optional<std::wstring> ModelName(ProMdl model);

}  // namespace qm
