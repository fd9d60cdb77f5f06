// Look-ups in dialogs, bound actions, and the texts that dialog functions take and hand out.
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

}  // namespace

LiveDialog& DialogAt(const Call& call, const char* name) {
  const std::string text = call.Narrow(name, kNarrowLimit, "dialog name");
  LiveDialog* const dialog = call.host.dialogs.Find(text);
  if (dialog == nullptr) call.Fail("there is no dialog \"" + text + "\"");
  return *dialog;
}

ProError Answer(const Call& call, UiStatus status, const std::string& component) {
  switch (status) {
    case UiStatus::kOk:
      return PRO_TK_NO_ERROR;
    case UiStatus::kNoComponent:
      call.Fail("the dialog has no component \"" + component + "\"");
    case UiStatus::kWrongKind:
      call.Fail("component \"" + component + "\" is of another kind");
    case UiStatus::kNotFound:
      return PRO_TK_E_NOT_FOUND;
    default:
      return PRO_TK_BAD_INPUTS;
  }
}

void Bind(const Call& call, const char* dialog, const std::string& component, const char* event,
          ProUIAction action, ProAppData data) {
  if (action == nullptr) call.Fail("null action");
  DialogAt(call, dialog).actions[{component, event}] = {reinterpret_cast<void*>(action), data};
}

void BindComponent(const Call& call, const char* dialog, const char* component, ComponentKind kind,
                   const char* event, ProUIAction action, ProAppData data) {
  const auto& found = StateAt<Component>(call, dialog, component, kind);
  Bind(call, dialog, found.name, event, action, data);
}

std::vector<std::string> NamesAt(const Call& call, char** names, int count) {
  return TextsAt(call, names, count,
                 [&](const char* name) { return call.Narrow(name, kNarrowLimit, "name"); });
}

std::vector<std::string> WideTextsAt(const Call& call, wchar_t** texts, int count) {
  return TextsAt(call, texts, count,
                 [&](const wchar_t* text) { return call.Text(text, kFieldLimit, "text"); });
}

}  // namespace wb
