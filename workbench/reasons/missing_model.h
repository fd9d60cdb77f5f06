// Why a model that a script names is not there, and what is.
#pragma once

#include <filesystem>
#include <string>

#include "workbench/session/session.h"

namespace wb {

// "; in session are bolt.prt, pump.asm", and how to bring it in where its file lies in the working
// directory, or what else lies there that is not in session.
std::string WhatIsInSession(const Session& session, const std::string& name);

// "; the folder holds bolt.prt, pump.asm", other files where there are no models.
std::string WhatLiesIn(const std::filesystem::path& folder, const std::string& name);

}  // namespace wb
