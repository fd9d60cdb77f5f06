// The model that a command works on: the current one, a manufacturing model standing for its
// assembly.
#pragma once

#include <optional>

#include "toolkit/model.h"

namespace qm {

struct CurrentModel {
  ProMdl model;  // never null
  ProMdlType type;
};

// The current model with its type; for a manufacturing model its assembly. Nothing when there is
// none or the host does not tell.
std::optional<CurrentModel> CurrentModelOrAssembly();

// The same for commands that work on assemblies only: nothing for any other type of model.
std::optional<ProMdl> CurrentAssembly();

}  // namespace qm
