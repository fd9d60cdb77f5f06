// Dialogs: the run that every dialog command follows, and the fields of a dialog.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <type_traits>

#include "frame/guard/shield.h"
#include "toolkit/ui.h"
#include "toolkit/ui_table.h"

namespace qm {

// Shown when a field cannot be read: an empty text in its place could change every model wrongly.
inline constexpr wchar_t kUnreadableField[] = L"无法读取对话框中的内容，操作已停止！";

// A dialog by its name, which need not stay in memory: what actions work on. Owns nothing.
class DialogView {
 public:
  explicit DialogView(std::string name) : name_(std::move(name)) {}

  const char* name() const { return name_.c_str(); }

  // Nothing when the host does not tell, which differs from an empty field.
  std::optional<std::wstring> TryInputValue(const char* component) const;
  // Name of the first selected button; empty when none is.
  std::optional<std::string> TryRadioValue(const char* component) const;
  std::optional<std::wstring> TryOptionValue(const char* component) const;
  std::optional<bool> CheckState(const char* component) const;

  // The host's answer, which is no proof that the field shows the value.
  ProError SetInputValue(const char* component, std::wstring value) const;
  ProError SetRadioValue(const char* component, std::string button) const;
  ProError SetOptionValue(const char* component, std::wstring value) const;
  ProError SetCheck(const char* component, bool checked) const;
  void EnableOption(const char* component, bool enabled) const;

  // What an input panel holds that may not be there.
  struct PossibleInput {
    bool is_there = true;
    std::optional<std::wstring> value;  // nothing when the host does not tell
  };
  PossibleInput InputIfThere(const char* component) const;

  // The user goes into an input panel. Also for those that an action makes.
  template <auto Action>
  ProError BindFocusIn(const char* component) const;

  // Over the window that a command brings up, which would cover the dialog otherwise.
  void KeepAboveActiveWindow() const;

  // Ends the dialog's activation.
  void Exit() const;

 private:
  std::string name_;
};

// Wraps a dialog action for the host. The action is `void(const DialogView&)`, or
// `void(const DialogView&, Data&)` when it was bound with data.
template <auto Action, typename Data = void>
struct DialogAction {
  static void Call(char* dialog, char* component, ProAppData data) noexcept {
    try {
      if constexpr (std::is_void_v<Data>) {
        Action(DialogView(dialog != nullptr ? dialog : ""));
      } else {
        Action(DialogView(dialog != nullptr ? dialog : ""), *static_cast<Data*>(data));
      }
    } catch (...) {
      ReportException(component != nullptr ? component : "dialog action");
    }
  }
};

template <auto Action>
ProError DialogView::BindFocusIn(const char* component) const {
  return ProUIInputpanelFocusinActionSet(name(), component, &DialogAction<Action>::Call, nullptr);
}

class Dialog;
// Binds and fills a new dialog. Any answer but PRO_TK_NO_ERROR, after a message of its own, ends
// the dialog before it is shown, and is then the command's.
using PrepareDialog = std::function<ProError(const Dialog&)>;

// Runs a dialog: created, prepared, shown until the user closes it, destroyed. `name` is also its
// resource's. A failure of the first, third or last step is shown; one that keeps the dialog from
// being shown is also the answer, and so is a dialog that nothing bound could close: the user would
// never get out of it. `finish` follows the end of a dialog that was prepared.
ProError RunDialog(
    const char* name, const PrepareDialog& prepare, const std::function<void()>& finish = [] {});

// A dialog of a command while RunDialog prepares and shows it: what is bound and filled.
class Dialog : public DialogView {
 public:
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;
  // Destroys the dialog that is still there.
  ~Dialog() { Destroy(); }

  template <auto Action>
  ProError BindButton(const char* component) const {
    return Bound(component, ProUIPushbuttonActivateActionSet(name(), component,
                                                             &DialogAction<Action>::Call, nullptr));
  }
  // `data` outlives the dialog.
  template <auto Action, typename Data>
  void BindButton(const char* component, Data& data) const {
    Bound(component,
          ProUIPushbuttonActivateActionSet(name(), component, &DialogAction<Action, Data>::Call,
                                           const_cast<std::remove_const_t<Data>*>(&data)));
  }
  // The user chose another button of the group.
  template <auto Action>
  void BindRadio(const char* component) const {
    Bound(component,
          ProUIRadiogroupSelectActionSet(name(), component, &DialogAction<Action>::Call, nullptr));
  }
  // A double-click on a row.
  template <auto Action>
  void BindTable(const char* component) const {
    Bound(component,
          ProUITableActivateActionSet(name(), component, &DialogAction<Action>::Call, nullptr));
  }
  // A cell of the table takes the focus.
  template <auto Action>
  void BindCellFocus(const char* component) const {
    Bound(component,
          ProUITableArmActionSet(name(), component, &DialogAction<Action>::Call, nullptr));
  }
  // The drawing area has got its place and size.
  template <auto Action>
  void BindDrawingArea(const char* component) const {
    Bound(component, ProUIDrawingareaPostmanagenotifyActionSet(
                         name(), component, &DialogAction<Action>::Call, nullptr));
  }
  // The dialog's own close action ends the activation with status 0.
  void BindClose() const;
  // So does this button.
  void BindCloseButton(const char* component = "Close") const;

 private:
  friend ProError RunDialog(const char*, const PrepareDialog&, const std::function<void()>&);

  explicit Dialog(const char* name) : DialogView(name) {}
  // Each says so when it fails.
  bool Create();
  bool Activate() const;
  void Destroy();
  // Logs a binding that the host has refused: the user will find that nothing happens.
  ProError Bound(const char* component, ProError status) const;

  bool created_ = false;
  // Whether the user can end the dialog: noted by the binding of its ways out.
  mutable bool has_way_out_ = false;
};

}  // namespace qm
