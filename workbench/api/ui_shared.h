// Pieces that the host functions of dialogs and of their tables share.
#pragma once

#include <string>
#include <vector>

#include "workbench/host/loans.h"

namespace wb {

// Longest wide text a component takes from the plug-in; far beyond any file path.
inline constexpr size_t kFieldLimit = 4096;

LiveDialog& DialogAt(const Call& call, const char* name);

// A component that the dialog's resource lacks, or has as another kind, is the plug-in's mistake;
// a value that does not fit is not.
ProError Answer(const Call& call, UiStatus status, const std::string& component);

// The typed state of a component: ChoiceState, TextState, CheckState, TableModel or Component.
template <typename State>
State& StateAt(const Call& call, const char* dialog, const char* component, ComponentKind kind) {
  const std::string name = call.Narrow(component, kNarrowLimit, "component name");
  State* state = nullptr;
  Answer(call, DialogAt(call, dialog).state.Find(kind, name, &state), name);
  return *state;
}

// Binds an action to an event of a dialog (component "") or of a component that must be of `kind`.
void Bind(const Call& call, const char* dialog, const std::string& component, const char* event,
          ProUIAction action, ProAppData data);
void BindComponent(const Call& call, const char* dialog, const char* component, ComponentKind kind,
                   const char* event, ProUIAction action, ProAppData data);

// `count` narrow or wide texts of the plug-in.
std::vector<std::string> NamesAt(const Call& call, char** names, int count);
std::vector<std::string> WideTextsAt(const Call& call, wchar_t** texts, int count);

}  // namespace wb
