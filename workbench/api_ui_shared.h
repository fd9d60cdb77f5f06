// Pieces that the host functions of dialogs and of their tables share.
#pragma once

#include <cstdlib>
#include <string>
#include <vector>

#include "workbench/api_shared.h"

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

// Texts on account of the plug-in. Arrays end with a null, by which FreeTexts knows their count.
wchar_t* GiveWide(const Call& call, const std::string& text);
char** GiveNames(const Call& call, const std::vector<std::string>& names);
wchar_t** GiveWideTexts(const Call& call, const std::vector<std::string>& texts);

// `count` narrow or wide texts of the plug-in.
std::vector<std::string> NamesAt(const Call& call, char** names, int count);
std::vector<std::string> WideTextsAt(const Call& call, wchar_t** texts, int count);

// Ends an array of texts that the plug-in gives back with the count it was given.
template <typename Character>
void FreeTexts(const Call& call, Character** texts, int count, Resource resource) {
  const std::string wrong = call.host.accounts.Check(texts, resource);
  if (!wrong.empty()) call.Fail(wrong);
  int given = 0;
  while (texts[given] != nullptr) ++given;
  if (count != given) {
    call.Fail("count " + std::to_string(count) + " for an array of " + std::to_string(given));
  }
  call.TakeBack(texts, resource);
  for (int i = 0; i < count; ++i) std::free(texts[i]);
  std::free(texts);
}

}  // namespace wb
