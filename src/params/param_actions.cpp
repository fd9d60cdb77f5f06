// Add, Update and Delete of the parameter dialog: the same steps with another conversion of the
// value and another operation on each model.
#include "params/param_actions.h"

#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/host_param.h"
#include "params/param_batch.h"
#include "params/param_settings.h"
#include "params/param_value_rules.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// True when the call succeeded; otherwise the model is passed over with a line in the log.
bool Done(const ParamTarget& target, const char* function, ProError status) {
  if (!Ok(status)) LogFailure(target.name, function, status);
  return Ok(status);
}

bool Create(const ParamTarget& target, HostName& name, ProParamvalue& value) {
  ProModelitem item = target.item;
  ProParameter parameter{};
  return Done(target, "ProParameterCreate",
              ProParameterCreate(&item, name.name, &value, &parameter));
}

bool Find(const ParamTarget& target, HostName& name, ProParameter* parameter) {
  ProModelitem item = target.item;
  return Done(target, "ProParameterInit", FindParameter(&item, name, parameter));
}

bool Set(const ParamTarget& target, HostName& name, ProParamvalue& value) {
  ProParameter parameter{};
  return Find(target, name, &parameter) &&
         Done(target, "ProParameterValueSet", ProParameterValueSet(&parameter, &value));
}

bool Remove(const ParamTarget& target, HostName& name, ProParamvalue&) {
  ProParameter parameter{};
  return Find(target, name, &parameter) &&
         Done(target, "ProParameterDelete", ProParameterDelete(&parameter));
}

struct ParamAction {
  const char* log_name;
  ValueOrRefusal (*to_value)(std::wstring_view type, std::wstring_view text);  // null: no value
  // False when the model is left as it was.
  bool (*apply)(const ParamTarget& target, HostName& name, ProParamvalue& value);
};
constexpr ParamAction kAdd = {"Add", &ValueToAdd, &Create};
constexpr ParamAction kUpdate = {"Update", &ValueToUpdate, &Set};
constexpr ParamAction kDelete = {"Delete", nullptr, &Remove};

// Nothing, after a message, when the value cannot be used.
std::optional<ProParamvalue> ReadValue(const DialogView& dialog, const ParamAction& action) {
  if (action.to_value == nullptr) return ProParamvalue{};
  const auto text = dialog.TryInputValue("ParaValue");
  const ValueOrRefusal value =
      text ? action.to_value(dialog.OptionValue("PtypeOption"), *text) : Refusal{kUnreadableField};
  if (const auto* const refusal = std::get_if<Refusal>(&value)) {
    ShowShortMessage(refusal->message);
    return std::nullopt;
  }
  return HostValue(std::get<ParamValue>(value));
}

void Run(const DialogView& dialog, const ParamAction& action) {
  // First, so that the user's fields survive even when the action then stops.
  SaveParamSettings(dialog);
  const auto top = CurrentModelOrAssembly();
  auto value = ReadValue(dialog, action);
  if (!value) return;
  ForEachTarget(action.log_name, dialog, kParameterFields, top,
                [&](const ParamTarget& target, HostName& name) {
                  return action.apply(target, name, *value);
                });
}

}  // namespace

void AddParameters(DialogView dialog) {
  Run(dialog, kAdd);
}
void UpdateParameters(DialogView dialog) {
  Run(dialog, kUpdate);
}
void DeleteParameters(DialogView dialog) {
  Run(dialog, kDelete);
}

}  // namespace qm
