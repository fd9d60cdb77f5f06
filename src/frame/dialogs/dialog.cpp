// The calls behind dialogs and their fields.
#include "frame/dialogs/dialog.h"

#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "toolkit/owners.h"
#include "toolkit/status.h"

namespace qm {
namespace {

std::optional<std::wstring> Taken(ProError status, const WideText& text) {
  if (!Ok(status) || !text) return std::nullopt;
  return text.get();
}

void CloseDialog(const DialogView& dialog) {
  dialog.Exit();
}

}  // namespace

std::optional<std::wstring> DialogView::TryInputValue(const char* component) const {
  WideText text;
  const ProError status = ProUIInputpanelValueGet(name(), component, text.put());
  return Taken(status, text);
}

DialogView::PossibleInput DialogView::InputIfThere(const char* component) const {
  WideText text;
  const ProError status = ProUIInputpanelValueGet(name(), component, text.put());
  // The host's answer for a component that the dialog does not have.
  if (status == PRO_TK_GENERAL_ERROR) return {false, std::nullopt};
  return {true, Taken(status, text)};
}

ProError DialogView::SetInputValue(const char* component, std::wstring value) const {
  return ProUIInputpanelValueSet(name(), component, value.data());
}

std::optional<std::string> DialogView::TryRadioValue(const char* component) const {
  NameList names;
  const ProError status =
      ProUIRadiogroupSelectednamesGet(name(), component, names.put_count(), names.put_texts());
  // A group without a selection may be told in either way.
  if (!Ok(status) && status != PRO_TK_E_NOT_FOUND) return std::nullopt;
  return names.size() > 0 ? std::string(names[0]) : std::string();
}

ProError DialogView::SetRadioValue(const char* component, std::string button) const {
  char* names[] = {button.data()};
  return ProUIRadiogroupSelectednamesSet(name(), component, 1, names);
}

std::optional<std::wstring> DialogView::TryOptionValue(const char* component) const {
  WideText text;
  const ProError status = ProUIOptionmenuValueGet(name(), component, text.put());
  return Taken(status, text);
}

ProError DialogView::SetOptionValue(const char* component, std::wstring value) const {
  return ProUIOptionmenuValueSet(name(), component, value.data());
}

void DialogView::EnableOption(const char* component, bool enabled) const {
  if (enabled) {
    ProUIOptionmenuEnable(name(), component);
  } else {
    ProUIOptionmenuDisable(name(), component);
  }
}

std::optional<bool> DialogView::CheckState(const char* component) const {
  // Neither set nor unset, should the host answer success without a state.
  auto state = static_cast<ProBoolean>(-1);
  if (!Ok(ProUICheckbuttonGetState(name(), component, &state))) return std::nullopt;
  if (state != PRO_B_FALSE && state != PRO_B_TRUE) return std::nullopt;
  return state == PRO_B_TRUE;
}

ProError DialogView::SetCheck(const char* component, bool checked) const {
  return checked ? ProUICheckbuttonSet(name(), component)
                 : ProUICheckbuttonUnset(name(), component);
}

void DialogView::KeepAboveActiveWindow() const {
  ProUIDialogAboveactivewindowSet(name(), PRO_B_TRUE);
}

void DialogView::Exit() const {
  ProUIDialogExit(name(), 0);
}

bool Dialog::Create() {
  created_ = Ok(ProUIDialogCreate(name(), name()));
  if (!created_) ShowShortMessage(L"UIDialog Create error!");
  return created_;
}

ProError Dialog::Bound(const char* component, ProError status) const {
  if (!Ok(status)) {
    LogFailure(std::string(component) + " does nothing, the host answered " + StatusName(status));
  }
  return status;
}

void Dialog::BindClose() const {
  if (Ok(ProUIDialogCloseActionSet(name(), &DialogAction<&CloseDialog>::Call, nullptr))) {
    has_way_out_ = true;
  }
}

void Dialog::BindCloseButton(const char* component) const {
  if (Ok(BindButton<&CloseDialog>(component))) has_way_out_ = true;
}

bool Dialog::Activate() const {
  int exit_status = 0;
  const bool activated = has_way_out_ && Ok(ProUIDialogActivate(name(), &exit_status));
  if (!activated) ShowShortMessage(L"UIDialog Activate error!");
  return activated;
}

void Dialog::Destroy() {
  if (!created_) return;
  created_ = false;
  if (!Ok(ProUIDialogDestroy(name()))) ShowShortMessage(L"UIDialog Destroy error!");
}

ProError RunDialog(const char* name, const PrepareDialog& prepare,
                   const std::function<void()>& finish) {
  Dialog dialog(name);
  if (!dialog.Create()) return PRO_TK_GENERAL_ERROR;
  const ProError prepared = prepare(dialog);
  if (!Ok(prepared)) return prepared;
  const bool was_shown = dialog.Activate();
  dialog.Destroy();
  finish();
  return was_shown ? PRO_TK_NO_ERROR : PRO_TK_GENERAL_ERROR;
}

}  // namespace qm
