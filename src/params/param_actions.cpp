// Add, Update and Delete of the parameter dialog: the same steps with another conversion of the
// value and another operation on each model.
#include "params/param_actions.h"

#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "params/param_batch.h"
#include "params/param_settings.h"
#include "params/param_value_rules.h"
#include "toolkit/status.h"

namespace qm {
namespace {

ParameterResult Delete(ProModelitem owner, HostName& name, ProParamvalue) {
  return DeleteParameter(owner, name);
}

struct ParamAction {
  const char* log_name;
  ValueOrRefusal (*to_value)(std::wstring_view type, std::wstring_view text);  // null: no value
  ParameterResult (*change)(ProModelitem owner, HostName& name, ProParamvalue value);
};
constexpr ParamAction kAdd = {"Add", &ValueToAdd, &CreateParameter};
constexpr ParamAction kUpdate = {"Update", &ValueToUpdate, &SetParameter};
constexpr ParamAction kDelete = {"Delete", nullptr, &Delete};

// Nothing, after a message, when the value cannot be used.
std::optional<ParamValue> AskValue(const DialogView& dialog, const ParamAction& action) {
  if (action.to_value == nullptr) return ParamValue();
  const auto text = dialog.TryInputValue("ParaValue");
  const auto type = dialog.TryOptionValue("PtypeOption");
  const ValueOrRefusal value =
      text && type ? action.to_value(*type, *text) : Refusal{kUnreadableField};
  if (const auto* const refusal = std::get_if<Refusal>(&value)) {
    ShowShortMessage(refusal->message);
    return std::nullopt;
  }
  return std::get<ParamValue>(value);
}

void Run(const DialogView& dialog, const StoredFields& fields, const ParamAction& action) {
  CommandLog log(action.log_name);
  // First, so that the user's fields survive even when the action then stops.
  SaveParamSettings(dialog, fields);
  const auto top = CurrentModelOrAssembly();
  auto value = AskValue(dialog, action);
  if (!value) return;
  const auto same_for_all = [&](const ModelTarget&) { return ValueForModel{value}; };
  // A model that cannot be changed, such as one that has the parameter already, is passed over with
  // a line in the log.
  const auto change = [&](const PlannedParam& param, HostName& name) {
    const auto host_value = HostValue(param.value);
    const auto [function, status] =
        host_value ? action.change(param.target.owner, name, *host_value) : kTextTooLong;
    if (!Ok(status)) LogFailure(param.target.name, function, status);
    return Ok(status);
  };
  RunBatch(dialog, fields, top, {kParameterFields, same_for_all, change});
}

}  // namespace

void AddParameters(const DialogView& dialog, StoredFields& fields) {
  Run(dialog, fields, kAdd);
}
void UpdateParameters(const DialogView& dialog, StoredFields& fields) {
  Run(dialog, fields, kUpdate);
}
void DeleteParameters(const DialogView& dialog, StoredFields& fields) {
  Run(dialog, fields, kDelete);
}

}  // namespace qm
