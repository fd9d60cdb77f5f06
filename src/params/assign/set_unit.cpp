// SetUnit: one of seven unit systems for the current model and, under an assembly, every component.
#include "params/assign/set_unit.h"

#include <algorithm>
#include <functional>

#include "frame/dialogs/dialog.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/opening.h"
#include "params/assign/unit_probe.h"
#include "params/assign/unit_rules.h"
#include "params/assign/unit_system.h"
#include "toolkit/status.h"

namespace qm {
namespace {

struct UnitWishes {
  std::wstring system;
  KeptByConversion kept;
};

struct UnitTargets {
  std::vector<CurrentModel> models;  // each once
  long long left_out = 0;
};

// Nothing where a group cannot be read; both always have a selection.
std::optional<UnitWishes> AskWishes(const DialogView& dialog) {
  const auto system = UnitSystemOf(dialog.TryRadioValue("UnitRadio").value_or(std::string()));
  const auto kept = KeptByButton(dialog.TryRadioValue("OptionRadio").value_or(std::string()));
  if (!system || !kept) return std::nullopt;
  return UnitWishes{*system, *kept};
}

bool HasUnits(const std::optional<CurrentModel>& model) {
  return model && (model->type == PRO_MDL_PART || model->type == PRO_MDL_ASSEMBLY);
}

// Nothing, after the message, when the components cannot be collected: of the models of an assembly
// all or none change their units.
std::optional<UnitTargets> TargetsUnder(const CurrentModel& top) {
  UnitTargets targets{{top}, 0};
  if (top.type != PRO_MDL_ASSEMBLY) return targets;
  ComponentList components;
  if (!Ok(CollectComponents(top.model, ComponentKind::kAll, &components))) {
    ShowNotCollected();
    return std::nullopt;
  }
  targets.left_out = static_cast<long long>(components.left_out().size());
  for (int i = 0; i < components.size(); ++i) {
    if (components.model(i) == nullptr) continue;
    targets.models.push_back({components.model(i), components.type(i)});
  }
  LogCount("components", components.size());
  std::ranges::sort(targets.models, std::less<>(), &CurrentModel::model);
  const auto repeated = std::ranges::unique(targets.models, {}, &CurrentModel::model);
  targets.models.erase(repeated.begin(), repeated.end());
  return targets;
}

ProUnitConvertType ConversionOf(KeptByConversion kept) {
  return kept == KeptByConversion::kSize ? PRO_UNITCONVERT_SAME_SIZE : PRO_UNITCONVERT_SAME_DIMS;
}

void SetUnits(const UnitTargets& targets, const UnitWishes& wishes) {
  UnitSetter setter(wishes.system, ConversionOf(wishes.kept));
  UnitProbe probe(wishes.system, wishes.kept);
  long long changed = 0;
  for (const CurrentModel& target : targets.models) {
    const bool is_part = target.type == PRO_MDL_PART;
    if (is_part) probe.Before(target.model);
    if (setter.Set(target.model)) ++changed;
    if (is_part) probe.After(target.model);
  }
  probe.End();
  LogCount("models", static_cast<long long>(targets.models.size()));
  LogCount("worked on", changed);
}

void Apply(const DialogView& dialog) {
  CommandLog log("ApplyBt");
  const auto wishes = AskWishes(dialog);
  if (!wishes) return ShowShortMessage(kUnreadableField);
  const auto top = CurrentModelItself();
  if (!HasUnits(top)) return LogOutcome("nothing done, no current part or assembly");
  const auto targets = TargetsUnder(*top);
  if (!targets) return;
  SetUnits(*targets, *wishes);
  NoteLeftOut(targets->left_out);
  ShowMessage(L"\t模型批量单位设置完成\t");
}

}  // namespace

ProError SetUnit() {
  return RunDialog("SetUnit", [](const Dialog& dialog) {
    dialog.BindButton<&Apply>("ApplyBt");
    dialog.BindCloseButton();
    dialog.BindClose();
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
