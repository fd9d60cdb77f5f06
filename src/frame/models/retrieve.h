// Retrieval of models by name.
#pragma once

#include <string_view>

#include "toolkit/model.h"

namespace qm {

// The model in session, or loaded from the working directory; or from the full path of its file.
// Null, after a failure in the log, when it cannot be had; a success without a model counts as
// that, and a name that is too long for any.
ProMdl RetrieveModel(std::wstring_view name, ProMdlType type);

// The same where there need not be one: that there is none is no line in the log.
ProMdl RetrieveIfThere(std::wstring_view name, ProMdlType type);

}  // namespace qm
