// Host functions that put components into assemblies and place them there.
#include "workbench/api/matrix.h"
#include "workbench/assembly/merging.h"
#include "workbench/host/arguments.h"
#include "workbench/session/extents.h"
#include "workbench/session/model_cycle.h"

namespace wb {
namespace {

struct AssemblyIn : SolidIn {
  Model& Look(const Call& call) const {
    Model& model = SolidIn::Look(call);
    if (model.id.kind != ModelKind::kAssembly)
      call.Fail("a part given where an assembly is needed");
    return model;
  }
};

// One end of a constraint in the making: what the plug-in's selection points at, which must be
// there still when the constraint is set.
struct Reference {
  ProSelection selection = nullptr;  // null: none yet, or a copy of the host's own
  ConstraintEnd end;
  const Model* owner = nullptr;
  const Model* root = nullptr;  // null: no path
  bool has_levels = false;
};

// What a constraint's handle stands for.
struct ConstraintDraft {
  int type = PRO_ASM_UNDEFINED;
  Reference in_assembly;
  Reference in_model;
};

struct ConstraintIn {
  ProAsmcompconstraint handle;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(handle)); }
  ConstraintDraft& Look(const Call& call) const {
    return *static_cast<ConstraintDraft*>(call.Look(handle, HandleKind::kConstraint).object);
  }
};

ProAsmcompconstraint NewConstraint(const Call& call, const ConstraintDraft& draft) {
  auto* const held = new ConstraintDraft(draft);
  const auto handle =
      static_cast<ProAsmcompconstraint>(call.host.handles.Give(HandleKind::kConstraint, held));
  call.Give(handle, Resource::kConstraint);
  return handle;
}

Reference ReferenceOf(ProSelection selection, const PickedItem& picked, ProDatumside side) {
  return {
      selection, {picked.type, picked.id, side}, picked.owner, picked.root, !picked.path.empty()};
}

const CoordinateSystem* CsysOf(const Reference& reference) {
  const SolidContent* const solid =
      reference.owner == nullptr ? nullptr : reference.owner->As<SolidContent>();
  if (solid == nullptr || reference.end.type != PRO_CSYS) return nullptr;
  return solid->coordinate_systems.Find(reference.end.id);
}

// The component's place once its coordinate system lies on the assembly's.
Placement PlacedByCsys(const Call& call, const ConstraintDraft& draft, const FeaturePlace& at) {
  const bool from_assembly = draft.in_assembly.root == &at.owner &&
                             draft.in_assembly.owner == &at.owner && !draft.in_assembly.has_levels;
  if (!from_assembly) call.FailUnlessMisled("the reference in the assembly has no path from it");
  const bool from_model =
      draft.in_model.root == nullptr && draft.in_model.owner == at.feature.ComponentModel();
  if (!from_model)
    call.FailUnlessMisled("the component's reference is not one of its model without a path");
  const CoordinateSystem* const fixed = CsysOf(draft.in_assembly);
  const CoordinateSystem* const moved = CsysOf(draft.in_model);
  if (fixed == nullptr || moved == nullptr) call.Fail("a reference is no coordinate system");
  return PlacedWithin(Inverse(moved->placement), fixed->placement);
}

void CheckStillSelected(const Call& call, const Reference& reference) {
  if (reference.selection == nullptr) return;
  if (call.SelectionAt(reference.selection).owner == nullptr) {
    call.Fail(HandleTable::Found{nullptr, 0, "a reference whose model is gone", true});
  }
}

void SetConstraints(const Call& call, const FeaturePlace& at,
                    std::span<ProAsmcompconstraint> given) {
  std::vector<ComponentConstraint> constraints;
  Placement placement = at.feature.component->placement;
  for (const ProAsmcompconstraint handle : given) {
    const ConstraintDraft& draft = ConstraintIn{handle}.Look(call);
    CheckStillSelected(call, draft.in_assembly);
    CheckStillSelected(call, draft.in_model);
    if (draft.type == PRO_ASM_UNDEFINED) call.FailUnlessMisled("a constraint without a type");
    if (draft.type == PRO_ASM_CSYS) {
      placement = PlacedByCsys(call, draft, at);
    } else if (draft.type != PRO_ASM_FIX) {
      throw NotModelled{"a constraint of type " + std::to_string(draft.type)};
    }
    constraints.push_back({draft.type, draft.in_assembly.end, draft.in_model.end});
  }
  at.feature.component->placement = placement;
  at.feature.constraints = std::move(constraints);
  at.owner.modified = true;
}

ProError Assemble(Model& assembly, Model& model, const Placement& placement, ProAsmcomp& place) {
  if (!IsRigid(placement)) return PRO_TK_INVALID_MATRIX;
  Feature component = NewComponent(NextId(assembly.solid().features), model.id, placement);
  component.component->link.model = &model;
  const int id = assembly.solid().features.Add(std::move(component)).id;
  if (!FindCycle({&assembly}).empty()) {
    assembly.solid().features.Remove(id);
    return PRO_TK_BAD_CONTEXT;
  }
  assembly.modified = true;
  place = {PRO_FEATURE, id, assembly.handle};
  return PRO_TK_NO_ERROR;
}

// A component whose dialog is opened. Where a fault keeps it from opening, no click is left over
// that the plug-in should not have made.
struct DialogComponentIn : ComponentIn {
  void Forgive(Host& host) const { host.TakeMiddleClick(); }
};

// What the user has chosen in the host's dialog.
void Place(const FeaturePlace& at, const PlacementAnswer& answer) {
  Placement& placement = at.feature.component->placement;
  at.feature.constraints.clear();
  if (answer.at) {
    std::copy(answer.at->begin(), answer.at->end(), placement[3].begin());
  } else {
    at.feature.constraints.push_back({PRO_ASM_FIX, {}, {}});
  }
  at.owner.modified = true;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProAsmcompAssemble(ProAssembly assembly, ProSolid model, ProMatrix placement,
                            ProAsmcomp* component) {
  return Crossing(__func__, AssemblyIn{{{assembly}}}, SolidIn{{model}}, MatrixIn{placement},
                  Out(component, "component place"))
      .Run([](Model& into, Model& placed, const Placement& at, ProAsmcomp& place) {
        return Assemble(into, placed, at, place);
      });
}

ProError ProAsmcompConstrRedefUI(ProAsmcomp* component) {
  return Crossing(__func__, DialogComponentIn{{{component}}})
      .Run([](const Call& call, const FeaturePlace& at) {
        // The component stays where it is, without a constraint.
        if (call.host.TakeMiddleClick()) return PRO_TK_NO_ERROR;
        if (call.host.user == nullptr) return PRO_TK_USER_ABORT;
        const int id = at.feature.id;
        const auto answer = call.host.user->PlaceComponent(
            {at.owner.id.Text(), at.feature.component->link.name.Text()});
        Feature* const feature = at.owner.FindFeature(id);
        if (!answer || feature == nullptr) return PRO_TK_USER_ABORT;
        Place({at.owner, *feature}, *answer);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProAsmcompConstraintsGet(ProAsmcomp* component, ProAsmcompconstraint** constraints) {
  return Crossing(__func__, ComponentIn{{component}}, Out(constraints, "constraints place"))
      .Run([](const Call& call, const FeaturePlace& at, ProAsmcompconstraint*& place) {
        const auto& held = at.feature.constraints;
        if (held.empty()) return PRO_TK_E_NOT_FOUND;
        place = static_cast<ProAsmcompconstraint*>(
            NewArray(call, static_cast<int>(held.size()), sizeof(ProAsmcompconstraint)));
        for (size_t i = 0; i < held.size(); ++i) {
          const Reference in_assembly{nullptr, held[i].in_assembly, &at.owner, &at.owner};
          const Reference in_model{nullptr, held[i].in_model, at.feature.ComponentModel()};
          place[i] = NewConstraint(call, {held[i].type, in_assembly, in_model});
        }
        return PRO_TK_NO_ERROR;
      });
}

ProError ProAsmcompConstraintsSet(ProAsmcomppath* path, ProAsmcomp* component,
                                  ProAsmcompconstraint* constraints) {
  return Crossing(__func__, DataIn{path}, ComponentIn{{component}},
                  ArrayIn(constraints, "constraints"))
      .Run([](const Call& call, void* way, const FeaturePlace& at,
              std::span<ProAsmcompconstraint> given) {
        if (way != nullptr) throw NotModelled{"constraints seen from another assembly"};
        SetConstraints(call, at, given);
      });
}

ProError ProAsmcompconstraintAlloc(ProAsmcompconstraint* constraint) {
  return Crossing(__func__, Out(constraint, "constraint place"))
      .Run([](const Call& call, ProAsmcompconstraint& place) { place = NewConstraint(call, {}); });
}

ProError ProAsmcompconstraintFree(ProAsmcompconstraint constraint) {
  return Crossing(__func__, GivenBack(constraint))
      .Run([](const Call& call, ProAsmcompconstraint lent) {
        call.TakeBack(lent, Resource::kConstraint);
        delete &ConstraintIn{lent}.Look(call);
        call.host.handles.End(lent);
      });
}

ProError ProAsmcompconstraintTypeSet(ProAsmcompconstraint constraint, ProAsmcompConstrType type) {
  return Crossing(__func__, ConstraintIn{constraint}, type)
      .Run([](ConstraintDraft& draft, ProAsmcompConstrType of) { draft.type = of; });
}

ProError ProAsmcompconstraintAsmreferenceSet(ProAsmcompconstraint constraint,
                                             ProSelection reference, ProDatumside side) {
  return Crossing(__func__, ConstraintIn{constraint}, SelectionIn{reference}, side)
      .Run([&](ConstraintDraft& draft, const PickedItem& picked, ProDatumside on) {
        draft.in_assembly = ReferenceOf(reference, picked, on);
      });
}

ProError ProAsmcompconstraintCompreferenceSet(ProAsmcompconstraint constraint,
                                              ProSelection reference, ProDatumside side) {
  return Crossing(__func__, ConstraintIn{constraint}, SelectionIn{reference}, side)
      .Run([&](ConstraintDraft& draft, const PickedItem& picked, ProDatumside on) {
        draft.in_model = ReferenceOf(reference, picked, on);
      });
}
