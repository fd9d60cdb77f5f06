// QmRemoveCons: counts the components for the dialog's text; its OK fixes them one by one. The fix
// constraint of a component is made before anything of it is removed, so that a failure leaves the
// component as it was.
#include "assembly/components/remove_cons.h"

#include <set>
#include <utility>

#include "assembly/components/remove_cons_click.h"
#include "frame/dialogs/dialog.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/component_list.h"
#include "frame/models/current_assembly.h"
#include "frame/models/opening.h"
#include "toolkit/component.h"
#include "toolkit/owners.h"
#include "toolkit/properties.h"

namespace qm {
namespace {

constexpr wchar_t kDone[] = L"\t\t所有带约束元件均已更改为固定约束！\t\t";

// The constraint, and the array of it that the host is given.
struct FixConstraint {
  Constraint constraint;
  HostArray<ProAsmcompconstraint> array;
};

// How a step on a component ended: the host's function that decided it, and its status.
struct StepResult {
  const char* function = nullptr;
  ProError status = PRO_TK_NO_ERROR;
};

StepResult MakeFix(FixConstraint* fix) {
  ProError status = ProAsmcompconstraintAlloc(fix->constraint.put());
  if (Ok(status) && !fix->constraint) status = PRO_TK_OUT_OF_MEMORY;
  if (!Ok(status)) return {"ProAsmcompconstraintAlloc", status};
  status = ProAsmcompconstraintTypeSet(fix->constraint.get(), PRO_ASM_FIX);
  if (!Ok(status)) return {"ProAsmcompconstraintTypeSet", status};
  status = fix->array.Allocate();
  if (!Ok(status)) return {"ProArrayAlloc", status};
  status = fix->array.Append(fix->constraint.get());
  // A success that added nothing would let the host put no constraint in the place of all.
  if (Ok(status) && fix->array.size() != 1) status = PRO_TK_OUT_OF_MEMORY;
  return {"ProArrayObjectAdd", status};
}

// What is left of an assembly after the user had the host's dialog to himself and may have erased
// models in it. Until then everything is.
class Remaining {
 public:
  explicit Remaining(ProMdl root) : root_(root) {}

  void LookAgain() {
    is_whole_ = false;
    components_.clear();
    has_root_ = IsStillCurrent(root_);
    if (!has_root_) return;
    ComponentList now;
    const ProError status = CollectComponents(root_, ComponentKind::kAll, &now);
    if (!Ok(status)) LogFailure(root_, "the components after a placement by the user", status);
    for (int i = 0; i < now.size(); ++i) {
      components_.insert({now.feature(i)->owner, now.feature(i)->id});
    }
  }

  bool Has(const ProAsmcomp& component) const {
    return is_whole_ || components_.contains({component.owner, component.id});
  }
  bool has_root() const { return has_root_; }

 private:
  const ProMdl root_;
  bool is_whole_ = true;
  bool has_root_ = true;
  std::set<std::pair<ProMdl, int>> components_;  // of which assembly, and the feature in it
};

constexpr StepResult kGone = {"the look for it after a placement by the user", PRO_TK_BAD_INPUTS};

// Deliberately a success without constraints counts as none: hosts answer either way.
// Any failure means that there are none, but one that is not the usual answer is logged.
int CountConstraints(ProAsmcomp& component) {
  ConstraintArray constraints;
  const ProError status = ProAsmcompConstraintsGet(&component, constraints.put());
  if (!Ok(status)) {
    if (status != PRO_TK_E_NOT_FOUND) {
      LogFailure(component.owner, "ProAsmcompConstraintsGet", status);
    }
    return 0;
  }
  const auto count = ToldArraySize(constraints.get());
  if (!count) LogFailure(component.owner, "ProArraySizeGet", PRO_TK_GENERAL_ERROR);
  return count.value_or(0);
}

// A packaged component gets a placement by the host's own dialog.
StepResult PlaceByDialog(ProAsmcomp& component, Remaining* remaining) {
  const bool is_confirmed = QueueMiddleClick();
  const ProError status = ProAsmcompConstrRedefUI(&component);
  if (!is_confirmed) remaining->LookAgain();
  if (!remaining->Has(component)) return kGone;
  if (!Ok(status)) LogFailure(component.owner, "ProAsmcompConstrRedefUI", status);
  return {};
}

// The indices grow while the list shrinks, which has always been so: soon they lie beyond the rest,
// which the host refuses and which is no failure. What is left is replaced by the fix constraint.
void RemoveConstraints(ProAsmcomp& component, int count) {
  for (int index = 0; index < count; ++index) ProAsmcompConstrRemove(&component, index);
}

// After this the fix constraint can take the place of all others.
StepResult ClearTheWay(ProAsmcomp& component, Remaining* remaining) {
  const int count = CountConstraints(component);
  if (count == 0) return PlaceByDialog(component, remaining);
  RemoveConstraints(component, count);
  return {};
}

StepResult PutFix(ProAsmcomp& component, const FixConstraint& fix) {
  const ProError status = ProAsmcompRegenerate(&component, PRO_B_TRUE);
  if (!Ok(status)) LogFailure(component.owner, "ProAsmcompRegenerate", status);
  return {"ProAsmcompConstraintsSet",
          ProAsmcompConstraintsSet(nullptr, &component, fix.array.get())};
}

// False, after a line in the log, when the component is not fixed.
bool FixComponent(ProAsmcomp& component, Remaining* remaining) {
  FixConstraint fix;
  StepResult step = remaining->Has(component) ? MakeFix(&fix) : kGone;
  if (Ok(step.status)) step = ClearTheWay(component, remaining);
  if (Ok(step.status)) step = PutFix(component, fix);
  if (!Ok(step.status)) LogLeftOut(component, step.function, step.status);
  return Ok(step.status);
}

// False when the user has erased the assembly meanwhile.
bool FixAll(ProMdl root, const ComponentList& components) {
  long long fixed = 0;
  long long left_out = static_cast<long long>(components.left_out().size());
  Remaining remaining(root);
  for (int i = 0; i < components.size(); ++i) {
    // One that was fixed in its assembly before is fixed in all placements of that assembly.
    if (components.repeated(i)) continue;
    ++(FixComponent(*components.feature(i), &remaining) ? fixed : left_out);
  }
  if (remaining.has_root()) {
    const ProError status = ProSolidRegenerate(root, kPlainRegeneration);
    if (!Ok(status)) LogFailure(root, "ProSolidRegenerate", status);
  }
  LogCount("components", components.size());
  LogCount("fixed", fixed);
  NoteLeftOut(left_out);
  return remaining.has_root();
}

void Confirm(const DialogView&) {
  CommandLog log("OK");
  const auto root = CurrentAssembly();
  if (!root) return ShowShortMessage(kAssembliesOnly);
  ComponentList components;
  if (!Ok(CollectComponents(*root, ComponentKind::kAll, &components))) return ShowNotCollected();
  if (FixAll(*root, components)) return ShowMessage(kDone);
  LogOutcome("not all is fixed, the assembly is gone");
  log.set_status(PRO_TK_GENERAL_ERROR);
}

// The text stays without a number when there is no assembly to count in; the refusal follows OK.
void TellCount(const Dialog& dialog) {
  const auto root = CurrentAssembly();
  ComponentList components;
  if (!root) return;
  ProError status = CollectComponents(*root, ComponentKind::kAll, &components);
  if (!Ok(status)) return LogFailure(*root, "the count of its components", status);
  const std::wstring text = L"当前组件中的元件数量：" + std::to_wstring(components.size());
  status = dialog.SetLabel("CountLabel", text);
  if (!Ok(status)) LogFailure(*root, "ProUILabelTextSet", status);
}

}  // namespace

ProError QmRemoveCons() {
  return RunDialog("QmRemoveCons", [](const Dialog& dialog) {
    dialog.BindButton<&Confirm>("OK");
    dialog.BindCloseButton("Cancel");
    dialog.BindClose();
    TellCount(dialog);
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
