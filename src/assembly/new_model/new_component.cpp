// Assembling, and the constraint of two coordinate systems.
#include "assembly/new_model/new_component.h"

#include "frame/guard/visit.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "toolkit/geometry.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

constexpr wchar_t kNoCsysInAssembly[] = L"\t当前组件无坐标系,无法缺省装配新零件\t";

bool Done(ProMdl model, const char* function, ProError status) {
  if (!Ok(status)) LogFailure(model, function, status);
  return Ok(status);
}

// Null when there is none, or the host does not tell.
ProCsys FirstCsys(ProSolid solid) {
  ProCsys first = nullptr;
  const ProError status = VisitCoordinateSystems(solid, [&](ProCsys csys) {
    if (first == nullptr) first = csys;
    return PRO_TK_NO_ERROR;
  });
  if (status != PRO_TK_E_NOT_FOUND) Done(solid, "ProSolidCsysVisit", status);
  return first;
}

// The assembly's one is reached by a path of no levels, the component's one without any.
OwnSelection SelectCsys(ProSolid owner, ProCsys csys, ProAsmcomppath* path) {
  OwnSelection selection;
  ProGeomitem item = {PRO_TYPE_INVALID, -1, nullptr};
  const ProError told = ProCsysToGeomitem(owner, csys, &item);
  if (!Ok(told) || item.owner == nullptr) {
    LogFailure(owner, "ProCsysToGeomitem", told);
    return selection;
  }
  const ProError status = ProSelectionAlloc(path, &item, selection.put());
  if (Ok(status) && !selection) LogFailure(owner, "ProSelectionAlloc", PRO_TK_OUT_OF_MEMORY);
  Done(owner, "ProSelectionAlloc", status);
  return selection;
}

OwnSelection SelectAssemblyCsys(ProAssembly assembly, ProCsys csys) {
  ProIdTable no_levels = {};
  ProAsmcomppath path = {};
  const ProError status = ProAsmcomppathInit(assembly, no_levels, 0, &path);
  if (Ok(status) && path.owner != nullptr) return SelectCsys(assembly, csys, &path);
  LogFailure(assembly, "ProAsmcomppathInit", status);
  return OwnSelection();
}

bool Fill(ProSolid owner, ProAsmcompconstraint constraint, ProSelection in_assembly,
          ProSelection in_model) {
  return Done(owner, "ProAsmcompconstraintTypeSet",
              ProAsmcompconstraintTypeSet(constraint, PRO_ASM_CSYS)) &&
         Done(
             owner, "ProAsmcompconstraintAsmreferenceSet",
             ProAsmcompconstraintAsmreferenceSet(constraint, in_assembly, PRO_DATUM_SIDE_YELLOW)) &&
         Done(owner, "ProAsmcompconstraintCompreferenceSet",
              ProAsmcompconstraintCompreferenceSet(constraint, in_model, PRO_DATUM_SIDE_YELLOW));
}

void Constrain(ProAsmcomp component, ProSelection in_assembly, ProSelection in_model) {
  const ProSolid owner = component.owner;
  HostArray<ProAsmcompconstraint> constraints;
  if (!Done(owner, "ProArrayAlloc", constraints.Allocate())) return;
  Constraint constraint;
  ProError made = ProAsmcompconstraintAlloc(constraint.put());
  if (Ok(made) && !constraint) made = PRO_TK_OUT_OF_MEMORY;
  if (!Done(owner, "ProAsmcompconstraintAlloc", made)) return;
  if (!Fill(owner, constraint.get(), in_assembly, in_model)) return;
  if (!Done(owner, "ProArrayObjectAdd", constraints.Append(constraint.get()))) return;
  Done(owner, "ProAsmcompConstraintsSet",
       ProAsmcompConstraintsSet(nullptr, &component, constraints.get()));
}

}  // namespace

std::optional<ProAsmcomp> AssembleAtOrigin(ProAssembly assembly, ProSolid model) {
  ProMatrix identity = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
  ProAsmcomp component = {PRO_TYPE_INVALID, -1, nullptr};
  const ProError status = ProAsmcompAssemble(assembly, model, identity, &component);
  if (Ok(status) && component.owner != nullptr) return component;
  LogFailure(model, "ProAsmcompAssemble", status);
  return std::nullopt;
}

bool ConstrainByCsys(ProAssembly assembly, ProAsmcomp component, ProSolid model,
                     const wchar_t* no_csys_in_model) {
  const ProCsys in_assembly = FirstCsys(assembly);
  const ProCsys in_model = in_assembly != nullptr ? FirstCsys(model) : nullptr;
  if (in_model == nullptr) {
    ShowMessage(in_assembly == nullptr ? kNoCsysInAssembly : no_csys_in_model);
    return false;
  }
  const OwnSelection assembly_side = SelectAssemblyCsys(assembly, in_assembly);
  const OwnSelection component_side = SelectCsys(model, in_model, nullptr);
  if (assembly_side && component_side) {
    Constrain(component, assembly_side.get(), component_side.get());
  }
  return true;
}

}  // namespace qm
