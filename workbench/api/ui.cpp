// Host functions for dialogs and their components.
#include "workbench/api/ui_shared.h"
#include "workbench/dialog/dialog_html.h"

namespace wb {
namespace {

ProError CreateDialog(const Call& call, const std::string& name, const std::string& resource) {
  Host& host = call.host;
  if (host.dialogs.Find(name) != nullptr) return PRO_TK_E_FOUND;
  const auto file = host.install_folder / "text" / "resource" / (resource + ".res");
  if (!std::filesystem::exists(file)) return PRO_TK_E_NOT_FOUND;
  try {
    auto dialog = std::make_unique<LiveDialog>(name, LoadDialogResource(file));
    call.Give(dialog.get(), Resource::kDialog);
    host.dialogs.open[name] = std::move(dialog);
    return PRO_TK_NO_ERROR;
  } catch (const std::exception& error) {
    host.file_problems.push_back(error.what());
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

ProError SetCheck(const Call& call, const char* dialog, const char* component, bool set) {
  StateAt<CheckState>(call, dialog, component, ComponentKind::kCheckButton).set = set;
  return PRO_TK_NO_ERROR;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProUIDialogCreate(const char* dialog, const char* resource) {
  return Crossing("ProUIDialogCreate", dialog, resource).Run([&](Call& call) {
    const std::string name = call.Narrow(dialog, kNarrowLimit, "dialog name");
    return CreateDialog(call, name, call.Narrow(resource, kNarrowLimit, "resource name"));
  });
}

ProError ProUIDialogActivate(const char* dialog, int* exit_status) {
  return Crossing("ProUIDialogActivate", dialog, Out(exit_status)).Run([&](Call& call) {
    return ActivateDialog(call, DialogAt(call, dialog), exit_status);
  });
}

ProError ProUIDialogDestroy(const char* dialog) {
  return Crossing("ProUIDialogDestroy", dialog).Run([&](Call& call) {
    LiveDialog& live = DialogAt(call, dialog);
    if (live.active) call.Fail("the dialog is still active");
    call.TakeBack(&live, Resource::kDialog);
    call.host.dialogs.open.erase(std::string(live.name));
    return PRO_TK_NO_ERROR;
  });
}

ProError ProUIDialogExit(const char* dialog, int exit_status) {
  return Crossing("ProUIDialogExit", dialog, exit_status).Run([&](Call& call) {
    LiveDialog& live = DialogAt(call, dialog);
    if (!live.active) call.Fail("the dialog is not active");
    live.ended = true;
    live.exit_status = exit_status;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProUIDialogCloseActionSet(const char* dialog, ProUIAction action, ProAppData data) {
  return Crossing("ProUIDialogCloseActionSet", dialog, action, static_cast<const void*>(data))
      .Run([&](Call& call) {
        Bind(call, dialog, "", kCloseEvent, action, data);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProUIPushbuttonActivateActionSet(const char* dialog, const char* component,
                                          ProUIAction action, ProAppData data) {
  return Crossing("ProUIPushbuttonActivateActionSet", dialog, component, action,
                  static_cast<const void*>(data))
      .Run([&](Call& call) {
        BindComponent(call, dialog, component, ComponentKind::kPushButton, kActivateEvent, action,
                      data);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProUIRadiogroupSelectednamesSet(const char* dialog, const char* component, int count,
                                         char** names) {
  return Crossing("ProUIRadiogroupSelectednamesSet", dialog, component, count,
                  static_cast<const void*>(names))
      .Run([&](Call& call) {
        auto& group = StateAt<ChoiceState>(call, dialog, component, ComponentKind::kRadioGroup);
        if (count != 1) call.Fail("a radio group takes one name");
        call.Place(names, "names");
        return Answer(call, group.Select({call.Narrow(names[0], kNarrowLimit, "button name")}),
                      component);
      });
}

ProError ProUIRadiogroupSelectednamesGet(const char* dialog, const char* component, int* count,
                                         char*** names) {
  return Crossing("ProUIRadiogroupSelectednamesGet", dialog, component, Out(count), Out(names))
      .Run([&](Call& call) {
        const auto& group =
            StateAt<ChoiceState>(call, dialog, component, ComponentKind::kRadioGroup);
        int& number = call.Place(count, "count place");
        char**& place = call.Place(names, "names place");
        if (group.Selected().empty()) {
          number = 0;
          place = nullptr;
          return PRO_TK_E_NOT_FOUND;
        }
        number = static_cast<int>(group.Selected().size());
        place = GiveNames(call, group.Selected());
        return PRO_TK_NO_ERROR;
      });
}

ProError ProUIInputpanelValueSet(const char* dialog, const char* component, wchar_t* value) {
  return Crossing("ProUIInputpanelValueSet", dialog, component, value).Run([&](Call& call) {
    auto& panel = StateAt<TextState>(call, dialog, component, ComponentKind::kInputPanel);
    return Answer(call, panel.SetValue(call.Text(value, kFieldLimit, "value")), component);
  });
}

ProError ProUIInputpanelValueGet(const char* dialog, const char* component, wchar_t** value) {
  return Crossing("ProUIInputpanelValueGet", dialog, component, Out(value)).Run([&](Call& call) {
    const auto& panel = StateAt<TextState>(call, dialog, component, ComponentKind::kInputPanel);
    call.Place(value, "value place") = GiveWide(call, panel.Value());
    return PRO_TK_NO_ERROR;
  });
}

ProError ProUIOptionmenuValueSet(const char* dialog, const char* component, wchar_t* value) {
  return Crossing("ProUIOptionmenuValueSet", dialog, component, value).Run([&](Call& call) {
    const std::string name = call.Narrow(component, kNarrowLimit, "component name");
    const std::string item = call.Text(value, kFieldLimit, "value");
    return Answer(call, DialogAt(call, dialog).state.SetOptionValue(name, item), name);
  });
}

ProError ProUIOptionmenuValueGet(const char* dialog, const char* component, wchar_t** value) {
  return Crossing("ProUIOptionmenuValueGet", dialog, component, Out(value)).Run([&](Call& call) {
    const std::string name = call.Narrow(component, kNarrowLimit, "component name");
    std::string item;
    const ProError status =
        Answer(call, DialogAt(call, dialog).state.GetOptionValue(name, &item), name);
    if (status == PRO_TK_NO_ERROR) call.Place(value, "value place") = GiveWide(call, item);
    return status;
  });
}

ProError ProUICheckbuttonGetState(const char* dialog, const char* component, ProBoolean* state) {
  return Crossing("ProUICheckbuttonGetState", dialog, component, Out(state)).Run([&](Call& call) {
    const auto& check = StateAt<CheckState>(call, dialog, component, ComponentKind::kCheckButton);
    call.Place(state, "state place") = check.set ? PRO_B_TRUE : PRO_B_FALSE;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProUICheckbuttonSet(const char* dialog, const char* component) {
  return Crossing("ProUICheckbuttonSet", dialog, component).Run([&](Call& call) {
    return SetCheck(call, dialog, component, true);
  });
}

ProError ProUICheckbuttonUnset(const char* dialog, const char* component) {
  return Crossing("ProUICheckbuttonUnset", dialog, component).Run([&](Call& call) {
    return SetCheck(call, dialog, component, false);
  });
}
