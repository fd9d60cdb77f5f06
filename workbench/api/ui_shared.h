// Argument kinds that the host functions of dialogs and of their tables share.
#pragma once

#include <string>
#include <vector>

#include "workbench/host/arguments.h"

namespace wb {

// Longest wide text a field takes from the plug-in; far beyond any file path.
inline constexpr size_t kFieldLimit = 4096;

struct DialogIn {
  const char* name;
  std::string Describe() const { return DescribeArgument(name); }
  LiveDialog& Look(const Call& call) const;
};

// A field that the dialog's resource lacks, or has as another kind, is the plug-in's mistake; a
// value that does not fit is not.
ProError Answer(const Call& call, UiStatus status, const std::string& field = "");

// Two arguments: the typed state of a field: ChoiceState, TextState, CheckState, TableModel or
// Field.
template <typename State>
struct FieldIn {
  const char* dialog;
  const char* field;
  FieldKind kind;
  std::string Describe() const { return DescribeArgument(dialog) + ", " + DescribeArgument(field); }
  State& Look(const Call& call) const {
    const std::string name = call.Narrow(field, kNarrowLimit, "component name");
    State* state = nullptr;
    Answer(call, DialogIn{dialog}.Look(call).state.Find(kind, name, &state), name);
    return *state;
  }
};
inline FieldIn<TableModel> TableIn(const char* dialog, const char* table) {
  return {dialog, table, FieldKind::kTable};
}

// Binds an action of the plug-in to an event of a field; without a field to one of the dialog.
struct EventOf {
  FieldKind kind;
  const char* event;
};
ProError BindFieldAction(const char* function, const char* dialog, const char* field,
                         const EventOf& event, ProUIAction action, ProAppData data);
ProError BindDialogAction(const char* function, const char* dialog, const char* event,
                          ProUIAction action, ProAppData data);

// Two arguments: a count and so many names, or wide texts, of the plug-in.
struct NamesIn {
  int count;
  char** names;
  std::string Describe() const {
    return DescribeArgument(count) + ", " + DescribeArgument(static_cast<const void*>(names));
  }
  std::vector<std::string> Look(const Call& call) const;
};
struct WideTextsIn {
  int count;
  wchar_t** texts;
  std::string Describe() const {
    return DescribeArgument(count) + ", " + DescribeArgument(static_cast<const void*>(texts));
  }
  std::vector<std::string> Look(const Call& call) const;
};

// Two arguments: the places of a count and of an array of texts. An empty list is no array.
template <typename Character>
struct ListPlace {
  const Call& call;
  int& count;
  Character**& array;
  void operator=(const std::vector<std::string>& texts) {
    count = static_cast<int>(texts.size());
    array = nullptr;
    if (texts.empty()) return;
    if constexpr (std::is_same_v<Character, char>) {
      array = GiveNames(call, texts);
    } else {
      array = GiveWideTexts(call, texts);
    }
  }
};
template <typename Character>
struct OutList {
  Out<int> count;
  Out<Character**> array;
  OutList(int* count_place, Character*** array_place)
      : count(count_place, "count place"), array(array_place, "array place") {}
  std::string Describe() const { return count.Describe() + ", " + array.Describe(); }
  ListPlace<Character> Look(const Call& call) const {
    int& number = count.Look(call);
    return {call, number, array.Look(call)};
  }
  void Empty() const {
    count.Empty();
    array.Empty();
  }
};

// A narrow text that the plug-in frees.
struct NarrowPlace {
  const Call& call;
  char*& place;
  void operator=(const std::string& text) { place = GiveNarrow(call, text); }
};
struct OutNarrow : Out<char*> {
  using Out::Out;
  NarrowPlace Look(const Call& call) const { return {call, Out::Look(call)}; }
};

// A text that the plug-in frees.
struct WidePlace {
  const Call& call;
  wchar_t*& place;
  void operator=(const std::string& text) { place = GiveWide(call, text); }
};
struct OutWide : Out<wchar_t*> {
  using Out::Out;
  WidePlace Look(const Call& call) const { return {call, Out::Look(call)}; }
};

}  // namespace wb
