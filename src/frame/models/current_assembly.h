// The model that a command works on: the current one, a manufacturing model standing for its
// assembly.
#pragma once

#include <optional>

#include "toolkit/model.h"

namespace qm {

// What the user reads where such a model is needed and another one is there.
inline constexpr wchar_t kAssembliesOnly[] = L"此功能仅组件/制造环境可用！";

struct CurrentModel {
  ProMdl model;  // never null
  ProMdlType type;
};

// The current model with its type, a manufacturing model as itself. Nothing when there is none or
// the host does not tell.
std::optional<CurrentModel> CurrentModelItself();

// The same; for a manufacturing model its assembly.
std::optional<CurrentModel> CurrentModelOrAssembly();

// The model of the component that the user has activated, and without one the current model.
std::optional<CurrentModel> ActiveModel();

// For commands that work on assemblies only: `current`, or its assembly where it is a manufacturing
// model; nothing for any other type of model.
std::optional<ProMdl> AssemblyOf(const std::optional<CurrentModel>& current);
std::optional<ProMdl> CurrentAssembly();

// Whether `assembly`, which was current before a question, still is: the user may have erased it
// meanwhile, and then the run log says so.
bool IsStillCurrent(ProMdl assembly);
// The same for what was active, a part or an assembly.
bool IsStillActive(ProMdl model);

}  // namespace qm
