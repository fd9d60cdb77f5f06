// The run that all buttons of the parameter dialog share, in three beats: what the user wants is
// asked, which models get which value is planned, and only then is anything changed.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "frame/dialogs/stored_fields.h"
#include "frame/models/parameters.h"
#include "params/model_targets.h"
#include "params/param_settings.h"
#include "toolkit/types.h"

namespace qm {

// The dialog's fields that choose the targets and the parameter.
struct BatchFields {
  const char* class_radio;
  StoredField keywords;
  StoredField name;
};
// The parameter's name is typed anew each time.
inline constexpr BatchFields kParameterFields = {
    "TypeRadio", kKeywords, {"ParaName", FieldKind::kInput, nullptr}};
inline constexpr BatchFields kOutlineFields = {"TypeRadio2", kToolKeywords, kOutlineName};
inline constexpr BatchFields kSheetSizeFields = {"TypeRadio2", kToolKeywords, kSheetSizeName};

// A model and the value that it is to get.
struct PlannedParam {
  ModelTarget target;
  ParamValue value;
};

// The value for a model; nothing leaves the model alone.
struct ValueForModel {
  std::optional<ParamValue> value;
  bool is_known = true;  // false: the model is left alone since it cannot be read
};
inline ValueForModel UnreadModel() {
  return {std::nullopt, false};
}

// What tells the buttons apart.
struct ParamBatch {
  BatchFields fields;
  // Plan: what a model is to get.
  std::function<ValueForModel(const ModelTarget&)> value_for;
  // Apply: true when it was written, and counts as worked on in the run log.
  std::function<bool(const PlannedParam&, HostName& param_name)> apply;
};

// Runs the batch under `top`: targets are the models of the chosen class whose own names begin with
// no exclusion keyword. Shows a message and changes nothing when the class cannot be read, no
// component is found, the typed name cannot be a parameter's or a field cannot be read, in this
// order. Refreshes the model tree at the end, and tells how many models it could not work on.
void RunBatch(const DialogView& dialog, const StoredFields& fields,
              const std::optional<CurrentModel>& top, const ParamBatch& batch);

// For batches of texts: sets the string parameter or creates it. A failure is passed over and
// logged.
bool WriteText(const PlannedParam& param, HostName& param_name);

}  // namespace qm
