// Look-ups in dialogs, bound actions, and the lists that dialog functions take.
#include "workbench/api/ui_shared.h"

namespace wb {
namespace {

// `read(item)` of each of `count` items.
template <typename Item, typename Read>
std::vector<std::string> TextsAt(const Call& call, Item* items, int count, Read read) {
  if (count < 0) call.Fail("a count of " + std::to_string(count));
  if (count > 0) call.Place(items, "array of texts");
  std::vector<std::string> texts;
  for (int i = 0; i < count; ++i) texts.push_back(read(items[i]));
  return texts;
}

// A dialog and the name of one of its fields that is of the wanted kind.
struct FieldPlace {
  LiveDialog& dialog;
  std::string field;
};
struct FieldPlaceIn : FieldIn<Field> {
  FieldPlace Look(const Call& call) const {
    const Field& found = FieldIn::Look(call);
    return {DialogIn{dialog}.Look(call), found.name};
  }
};

}  // namespace

LiveDialog& DialogIn::Look(const Call& call) const {
  const std::string text = call.Narrow(name, kNarrowLimit, "dialog name");
  LiveDialog* const dialog = call.host.dialogs.Find(text);
  if (dialog == nullptr) call.Fail("there is no dialog \"" + text + "\"");
  return *dialog;
}

ProError Answer(const Call& call, UiStatus status, const std::string& field) {
  switch (status) {
    case UiStatus::kOk:
      return PRO_TK_NO_ERROR;
    case UiStatus::kNoField:
      if (call.host.habits.lacking_field_is_an_error) throw RefusedByHabit{PRO_TK_GENERAL_ERROR};
      call.Fail("the dialog has no component \"" + field + "\"");
    case UiStatus::kWrongKind:
      call.Fail("component \"" + field + "\" is of another kind");
    case UiStatus::kNotFound:
      return PRO_TK_E_NOT_FOUND;
    default:
      return PRO_TK_BAD_INPUTS;
  }
}

ProError BindFieldAction(const char* function, const char* dialog, const char* field,
                         const EventOf& event, ProUIAction action, ProAppData data) {
  return Crossing(function, FieldPlaceIn{{dialog, field, event.kind}}, CallbackIn(action, "action"),
                  DataIn{data})
      .Run([&](const FieldPlace& at, ProUIAction bound, void* own) {
        at.dialog.actions[{at.field, event.event}] = {reinterpret_cast<void*>(bound), own};
      });
}

ProError BindDialogAction(const char* function, const char* dialog, const char* event,
                          ProUIAction action, ProAppData data) {
  return Crossing(function, DialogIn{dialog}, CallbackIn(action, "action"), DataIn{data})
      .Run([&](LiveDialog& at, ProUIAction bound, void* own) {
        at.actions[{"", event}] = {reinterpret_cast<void*>(bound), own};
      });
}

std::vector<std::string> NamesIn::Look(const Call& call) const {
  return TextsAt(call, names, count,
                 [&](const char* name) { return call.Narrow(name, kNarrowLimit, "name"); });
}

std::vector<std::string> WideTextsIn::Look(const Call& call) const {
  return TextsAt(call, texts, count,
                 [&](const wchar_t* text) { return call.Text(text, kFieldLimit, "text"); });
}

}  // namespace wb
