// Dialogs: the pattern that every dialog command follows, and the fields of a dialog.
#pragma once

#include <optional>
#include <string>
#include <type_traits>

#include "frame/guard/shield.h"
#include "toolkit/ui.h"
#include "toolkit/ui_table.h"

namespace qm {

// Shown when a field cannot be read: an empty text in its place could change every model wrongly.
inline constexpr wchar_t kUnreadableField[] = L"无法读取对话框中的内容,操作已停止!";

// A dialog by its name, which need not stay in memory: what actions work on. Owns nothing.
// A field that cannot be read gives an empty text; a failed set is not reported.
class DialogView {
 public:
  explicit DialogView(std::string name) : name_(std::move(name)) {}

  const char* name() const { return name_.c_str(); }

  std::wstring InputValue(const char* component) const;
  void SetInputValue(const char* component, std::wstring value) const;
  // Name of the first selected button.
  std::string RadioValue(const char* component) const;
  void SetRadioValue(const char* component, std::string button) const;
  std::wstring OptionValue(const char* component) const;
  void SetOptionValue(const char* component, std::wstring value) const;
  void EnableOption(const char* component, bool enabled) const;
  // Nothing when the host does not tell.
  std::optional<bool> CheckState(const char* component) const;
  void SetCheck(const char* component, bool checked) const;

  // Nothing when the host does not tell, which differs from an empty field.
  std::optional<std::wstring> TryInputValue(const char* component) const;
  std::optional<std::string> TryRadioValue(const char* component) const;
  std::optional<std::wstring> TryOptionValue(const char* component) const;

  // Over the window that a command brings up, which would cover the dialog otherwise.
  void KeepAboveActiveWindow() const;

  // Ends the dialog's activation.
  void Exit(int exit_status = 0) const;

 private:
  std::string name_;
};

// Wraps a dialog action for the host. The action is `void(DialogView)`, or
// `void(DialogView, ProAppData)` when it was bound with data.
template <auto Action>
struct DialogAction {
  static void Call(char* dialog, char* component, ProAppData data) noexcept {
    try {
      if constexpr (std::is_invocable_v<decltype(Action), DialogView, ProAppData>) {
        Action(DialogView(dialog != nullptr ? dialog : ""), data);
      } else {
        Action(DialogView(dialog != nullptr ? dialog : ""));
      }
    } catch (...) {
      ReportException(component != nullptr ? component : "dialog action");
    }
  }
};

// A dialog that a command creates, activates and destroys; its name is also its resource's. A
// failure of one of the three calls is shown. Destroyed at the latest by the destructor.
class Dialog : public DialogView {
 public:
  explicit Dialog(const char* name) : DialogView(name) {}
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;
  ~Dialog() { Destroy(); }

  // False, after the message, when the dialog cannot be created: the command stops.
  bool Create();

  template <auto Action>
  ProError BindButton(const char* component, ProAppData data = nullptr) const {
    return ProUIPushbuttonActivateActionSet(name(), component, &DialogAction<Action>::Call, data);
  }
  // The user chose another button of the group.
  template <auto Action>
  ProError BindRadio(const char* component) const {
    return ProUIRadiogroupSelectActionSet(name(), component, &DialogAction<Action>::Call, nullptr);
  }
  // A double-click on a row.
  template <auto Action>
  ProError BindTable(const char* component) const {
    return ProUITableActivateActionSet(name(), component, &DialogAction<Action>::Call, nullptr);
  }
  // The drawing area has got its place and size.
  template <auto Action>
  ProError BindDrawingArea(const char* component) const {
    return ProUIDrawingareaPostmanagenotifyActionSet(name(), component, &DialogAction<Action>::Call,
                                                     nullptr);
  }
  // The dialog's own close action ends the activation with status 0.
  void BindClose() const;
  // So does this button.
  void BindCloseButton(const char* component = "Close") const;

  // Runs the dialog until the user closes it. False, after the message, when it cannot be shown.
  bool Activate(int* exit_status = nullptr);
  // Does nothing when there is no dialog (any more).
  void Destroy();

 private:
  bool created_ = false;
};

}  // namespace qm
