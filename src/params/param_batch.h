// The walk over the target models that all buttons of the parameter dialog share.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "frame/current_assembly.h"
#include "frame/dialog.h"
#include "toolkit/types.h"

namespace qm {

// The dialog's fields that choose the targets.
struct TargetFields {
  const char* class_radio;
  const char* keywords_input;
};
inline constexpr TargetFields kParameterTargets = {"TypeRadio", "InputKeyWords"};
inline constexpr TargetFields kToolTargets = {"TypeRadio2", "InputKeyWords2"};

// One model to work on.
struct ParamTarget {
  ProMdl model;
  std::wstring name;  // as the host gives it
  ProModelitem item;  // the model as owner of parameters
};

// The parameter name in an input panel; nothing, after a message, when it cannot be one.
std::optional<std::wstring> ReadParamName(const DialogView& dialog, const char* component);

// Calls `apply` for each target under `top` whose name begins with no exclusion keyword, then
// refreshes the model tree. Shows a message and calls nothing when no component is found. `apply`
// answers whether it found something to do; the run log counts that under `action`.
void ForEachTarget(const char* action, const DialogView& dialog, const TargetFields& fields,
                   const std::optional<CurrentModel>& top,
                   const std::function<bool(const ParamTarget&)>& apply);

}  // namespace qm
