// Looks up the model that a command works on.
#include "frame/models/current_assembly.h"

#include "frame/messages/run_log.h"
#include "toolkit/status.h"

namespace qm {
namespace {

std::optional<CurrentModel> WithType(ProMdl model) {
  ProMdlType type = PRO_MDL_UNUSED;
  if (!Ok(ProMdlTypeGet(model, &type))) return std::nullopt;
  return CurrentModel{model, type};
}

std::optional<CurrentModel> WithoutManufacturing(const std::optional<CurrentModel>& current) {
  if (!current || current->type != PRO_MDL_MFG) return current;
  ProAssembly assembly = nullptr;
  if (!Ok(ProMfgAssemGet(current->model, &assembly)) || assembly == nullptr) return std::nullopt;
  return CurrentModel{assembly, PRO_MDL_ASSEMBLY};
}

}  // namespace

std::optional<CurrentModel> CurrentModelItself() {
  ProMdl model = nullptr;
  if (!Ok(ProMdlCurrentGet(&model)) || model == nullptr) return std::nullopt;
  return WithType(model);
}

std::optional<CurrentModel> ActiveModel() {
  ProMdl model = nullptr;
  if (!Ok(ProMdlActiveGet(&model)) || model == nullptr) return std::nullopt;
  return WithType(model);
}

std::optional<CurrentModel> CurrentModelOrAssembly() {
  return WithoutManufacturing(CurrentModelItself());
}

std::optional<ProMdl> AssemblyOf(const std::optional<CurrentModel>& current) {
  const auto assembly = WithoutManufacturing(current);
  if (!assembly || assembly->type != PRO_MDL_ASSEMBLY) return std::nullopt;
  return assembly->model;
}

std::optional<ProMdl> CurrentAssembly() {
  return AssemblyOf(CurrentModelItself());
}

bool IsStillCurrent(ProMdl assembly) {
  if (CurrentAssembly() == assembly) return true;
  LogFailure("the assembly is not current any more");
  return false;
}

bool IsStillActive(ProMdl model) {
  const auto active = ActiveModel();
  if (active && (active->model == model || AssemblyOf(active) == model)) return true;
  LogFailure("the model is not active any more");
  return false;
}

}  // namespace qm
