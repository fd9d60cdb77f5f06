// The run that all buttons of the parameter dialog share, in three beats: what the user wants is
// asked, which models get which value is planned, and only then is anything changed.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "frame/dialogs/dialog.h"
#include "frame/models/current_assembly.h"
#include "frame/models/parameters.h"
#include "toolkit/types.h"

namespace qm {

// The dialog's fields that choose the targets and the parameter.
struct BatchFields {
  const char* class_radio;
  const char* keywords_input;
  const char* name_input;
};
inline constexpr BatchFields kParameterFields = {"TypeRadio", "InputKeyWords", "ParaName"};
inline constexpr BatchFields kOutlineFields = {"TypeRadio2", "InputKeyWords2", "outlinePname"};
inline constexpr BatchFields kSheetSizeFields = {"TypeRadio2", "InputKeyWords2", "shSizePname"};

// One model to work on.
struct ParamTarget {
  ProMdl model;
  std::wstring name;   // as the host gives it
  ProModelitem owner;  // the model as owner of parameters
};

// A model and the value that it is to get.
struct PlannedParam {
  ParamTarget target;
  ParamValue value;
};

// What tells the buttons apart.
struct ParamBatch {
  const char* log_name;
  BatchFields fields;
  // Plan: the value for a model; nothing leaves the model alone.
  std::function<std::optional<ParamValue>(const ParamTarget&)> value_for;
  // Apply: true when it counts as worked on in the run log.
  std::function<bool(const PlannedParam&, HostName& param_name)> apply;
};

// Runs the batch under `top`: targets are the models of the chosen class whose own names begin with
// no exclusion keyword. Shows a message and changes nothing when no component is found or the typed
// name cannot be a parameter's, in this order. Refreshes the model tree at the end.
void RunBatch(const DialogView& dialog, const std::optional<CurrentModel>& top,
              const ParamBatch& batch);

// For batches of texts: sets the string parameter or creates it. A failure is passed over and
// logged, and counts as worked on.
bool WriteText(const PlannedParam& param, HostName& param_name);

}  // namespace qm
