// The walk over the target models that all buttons of the parameter dialog share.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "frame/dialogs/dialog.h"
#include "frame/models/current_assembly.h"
#include "frame/models/parameter_lookup.h"
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
  std::wstring name;  // as the host gives it
  ProModelitem item;  // the model as owner of parameters
};

// Calls `apply` with the parameter's name for each target under `top` whose own name begins with no
// exclusion keyword, then refreshes the model tree. Shows a message and calls nothing when no
// component is found or the typed name cannot be a parameter's, in this order. `apply` answers
// whether it found something to do; the run log counts that under `action`.
void ForEachTarget(const char* action, const DialogView& dialog, const BatchFields& fields,
                   const std::optional<CurrentModel>& top,
                   const std::function<bool(const ParamTarget&, HostName&)>& apply);

}  // namespace qm
