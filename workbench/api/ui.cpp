// Host functions for dialogs and their components.
#include "workbench/api/ui_shared.h"
#include "workbench/dialog/dialog_html.h"

namespace wb {
namespace {

ProError CreateDialog(const Call& call, const std::string& name, const std::string& resource) {
  Host& host = call.host;
  if (host.dialogs.Find(name) != nullptr) return PRO_TK_E_FOUND;
  const auto file = host.ResourceFile(resource + ".res");
  if (!std::filesystem::exists(file)) return PRO_TK_E_NOT_FOUND;
  try {
    auto dialog = std::make_unique<LiveDialog>(name, LoadDialogResource(file));
    call.Give(dialog.get(), Resource::kDialog);
    host.dialogs.open[name] = std::move(dialog);
    return PRO_TK_NO_ERROR;
  } catch (const std::exception& error) {
    host.events.Add(FileProblem{error.what()});
    return PRO_TK_INVALID_FILE;
  }
}

// Drawing areas hear once that they have been laid out, before the user sees the dialog.
void FirePostManage(LiveDialog& dialog) {
  std::vector<std::string> components;
  for (const auto& [key, action] : dialog.actions) {
    if (key.second == kPostManageEvent) components.push_back(key.first);
  }
  for (const std::string& component : components) dialog.Fire(component, kPostManageEvent);
}

ProError ActivateDialog(const Call& call, LiveDialog& dialog, int* exit_status) {
  if (dialog.active) call.Fail("the dialog is active already");
  if (call.host.user == nullptr) throw NotModelled{"a dialog that nobody works"};
  dialog.active = true;
  dialog.ended = false;
  FirePostManage(dialog);
  if (!dialog.ended) call.host.user->WorkDialog(dialog);
  dialog.active = false;
  call.host.dialogs.pictures.push_back({dialog.name, DrawDialog(dialog.state)});
  if (exit_status != nullptr) *exit_status = dialog.exit_status;
  return dialog.ended ? PRO_TK_NO_ERROR : PRO_TK_GENERAL_ERROR;
}

// A fault that keeps the dialog from being destroyed is not held against the plug-in.
struct DialogGivenBack : DialogIn {
  void Forgive(Host& host) const {
    const LiveDialog* const dialog = name == nullptr ? nullptr : host.dialogs.Find(name);
    if (dialog != nullptr) host.accounts.Forgive(dialog);
  }
};

FieldIn<ChoiceState> RadioIn(const char* dialog, const char* group) {
  return {dialog, group, FieldKind::kRadioGroup};
}
FieldIn<TextState> InputIn(const char* dialog, const char* panel) {
  return {dialog, panel, FieldKind::kInputPanel};
}
FieldIn<CheckState> CheckIn(const char* dialog, const char* button) {
  return {dialog, button, FieldKind::kCheckButton};
}
TextIn FieldValueIn(const wchar_t* value) {
  return {value, kFieldLimit, "value"};
}
NarrowIn FieldNameIn(const char* field) {
  return {field, "component name"};
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProUIDialogCreate(const char* dialog, const char* resource) {
  return Crossing(__func__, NarrowIn{dialog, "dialog name"}, NarrowIn{resource, "resource name"})
      .Run(&CreateDialog);
}

ProError ProUIDialogActivate(const char* dialog, int* exit_status) {
  return Crossing(__func__, DialogIn{dialog}, OptionalOut(exit_status)).Run(&ActivateDialog);
}

ProError ProUIDialogDestroy(const char* dialog) {
  return Crossing(__func__, DialogGivenBack{{dialog}}).Run([](const Call& call, LiveDialog& live) {
    if (live.active) call.Fail("the dialog is still active");
    call.TakeBack(&live, Resource::kDialog);
    call.host.dialogs.open.erase(std::string(live.name));
  });
}

ProError ProUIDialogExit(const char* dialog, int exit_status) {
  return Crossing(__func__, DialogIn{dialog}, exit_status)
      .Run([](const Call& call, LiveDialog& live, int status) {
        if (!live.active) call.Fail("the dialog is not active");
        live.ended = true;
        live.exit_status = status;
      });
}

ProError ProUIDialogCloseActionSet(const char* dialog, ProUIAction action, ProAppData data) {
  return BindDialogAction(__func__, dialog, kCloseEvent, action, data);
}

ProError ProUIPushbuttonActivateActionSet(const char* dialog, const char* component,
                                          ProUIAction action, ProAppData data) {
  return BindFieldAction(__func__, dialog, component, {FieldKind::kPushButton, kActivateEvent},
                         action, data);
}

ProError ProUIRadiogroupSelectednamesSet(const char* dialog, const char* component, int count,
                                         char** names) {
  return Crossing(__func__, RadioIn(dialog, component), NamesIn{count, names})
      .Run([](const Call& call, ChoiceState& group, const std::vector<std::string>& wanted) {
        if (wanted.size() != 1) call.Fail("a radio group takes one name");
        return Answer(call, group.Select(wanted));
      });
}

ProError ProUIRadiogroupSelectednamesGet(const char* dialog, const char* component, int* count,
                                         char*** names) {
  return Crossing(__func__, RadioIn(dialog, component), OutList(count, names))
      .Run([](const Call& call, const ChoiceState& group, ListPlace<char> place) {
        place = group.Selected();
        const bool succeeds =
            !group.Selected().empty() || call.host.habits.radio_without_choice_succeeds;
        return succeeds ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND;
      });
}

ProError ProUIInputpanelValueSet(const char* dialog, const char* component, wchar_t* value) {
  return Crossing(__func__, InputIn(dialog, component), FieldValueIn(value))
      .Run([](const Call& call, TextState& panel, const std::string& text) {
        return Answer(call, panel.SetValue(text));
      });
}

ProError ProUIInputpanelValueGet(const char* dialog, const char* component, wchar_t** value) {
  return Crossing(__func__, DialogIn{dialog}, FieldNameIn(component), OutWide(value, "value place"))
      .Run([](const Call& call, LiveDialog& live, const std::string& name, WidePlace place) {
        TextState* panel = nullptr;
        const UiStatus found = live.state.Find(FieldKind::kInputPanel, name, &panel);
        // Whether a panel is there is asked in this way, so that it is no misuse.
        if (found == UiStatus::kNoField) return PRO_TK_GENERAL_ERROR;
        const ProError status = Answer(call, found, name);
        place = panel->Value();
        return status;
      });
}

ProError ProUIInputpanelFocusinActionSet(const char* dialog, const char* component,
                                         ProUIAction action, ProAppData data) {
  return BindFieldAction(__func__, dialog, component, {FieldKind::kInputPanel, kFocusInEvent},
                         action, data);
}

ProError ProUIOptionmenuValueSet(const char* dialog, const char* component, wchar_t* value) {
  return Crossing(__func__, DialogIn{dialog}, FieldNameIn(component), FieldValueIn(value))
      .Run([](const Call& call, LiveDialog& live, const std::string& name,
              const std::string& item) {
        const bool by_label = call.host.habits.option_menu_answers_label;
        return Answer(
            call,
            live.state.SetOptionValue(name, by_label ? live.state.OptionNamed(name, item) : item),
            name);
      });
}

ProError ProUIOptionmenuValueGet(const char* dialog, const char* component, wchar_t** value) {
  return Crossing(__func__, DialogIn{dialog}, FieldNameIn(component), OutWide(value, "value place"))
      .Run([](const Call& call, const LiveDialog& live, const std::string& name, WidePlace place) {
        std::string item;
        const ProError status = Answer(call, live.state.GetOptionValue(name, &item), name);
        if (status != PRO_TK_NO_ERROR) return status;
        const bool by_label = call.host.habits.option_menu_answers_label;
        place = by_label ? live.state.OptionLabel(name, item) : item;
        return status;
      });
}

ProError ProUICheckbuttonGetState(const char* dialog, const char* component, ProBoolean* state) {
  return Crossing(__func__, CheckIn(dialog, component), Out(state, "state place"))
      .Run([](const CheckState& check, ProBoolean& place) {
        place = check.set ? PRO_B_TRUE : PRO_B_FALSE;
      });
}

ProError ProUICheckbuttonSet(const char* dialog, const char* component) {
  return Crossing(__func__, CheckIn(dialog, component)).Run([](CheckState& check) {
    check.set = true;
  });
}

ProError ProUICheckbuttonUnset(const char* dialog, const char* component) {
  return Crossing(__func__, CheckIn(dialog, component)).Run([](CheckState& check) {
    check.set = false;
  });
}
