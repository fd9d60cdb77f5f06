// Looks up the model that a command works on.
#include "frame/current_assembly.h"

#include "toolkit/status.h"

namespace qm {

std::optional<CurrentModel> CurrentModelOrAssembly() {
  ProMdl model = nullptr;
  ProMdlType type = PRO_MDL_UNUSED;
  if (!Ok(ProMdlCurrentGet(&model)) || model == nullptr) return std::nullopt;
  if (!Ok(ProMdlTypeGet(model, &type))) return std::nullopt;
  if (type != PRO_MDL_MFG) return CurrentModel{model, type};
  ProAssembly assembly = nullptr;
  if (!Ok(ProMfgAssemGet(model, &assembly)) || assembly == nullptr) return std::nullopt;
  return CurrentModel{assembly, PRO_MDL_ASSEMBLY};
}

std::optional<ProMdl> CurrentAssembly() {
  const auto current = CurrentModelOrAssembly();
  if (!current || current->type != PRO_MDL_ASSEMBLY) return std::nullopt;
  return current->model;
}

}  // namespace qm
