// Every kind of function that the plug-in hands to the host or to Windows, each with a probe: a
// function of that kind that throws, called through its shield. Only for tests, which walk the
// table; an exception that came through would end the process.
#pragma once

#include <stdexcept>

#include "frame/dialogs/dialog.h"
#include "frame/guard/shield.h"

namespace qm {
namespace probe {

// The function given to the host, and what the host gets back from it.
template <typename Result, typename... Args>
Result Throwing(Args...) {
  throw std::runtime_error("probe");
}

inline void ThrowingDialogAction(DialogView) {
  throw std::runtime_error("probe");
}

inline long long Command() {
  return RunCommand("probe", &Throwing<ProError>);
}
inline long long Access() {
  return Shielded<&Throwing<uiCmdAccessState, uiCmdAccessMode>>::Call(0);
}
inline long long PopupAccess() {
  return Shielded<&Throwing<uiCmdAccessState, uiCmdCmdId, ProAppData, ProSelection*>>::Call(
      nullptr, nullptr, nullptr);
}
inline long long Notification() {
  return Shielded<&Throwing<ProError, char*>>::Call(nullptr);
}
inline long long DialogButton() {
  DialogAction<&ThrowingDialogAction>::Call(nullptr, nullptr, nullptr);
  return 0;
}
inline long long Timer() {
  Shielded<&Throwing<void, unsigned long long>>::Call(0);
  return 0;
}
inline long long Entry() {
  Shielded<&Throwing<void>>::Call();
  return 0;
}

}  // namespace probe

struct ShieldedEntry {
  const char* kind;
  const char* given_to;
  long long (*run_probe)();
  // What the host must get; 0 where it gets nothing.
  long long answer;
  // The user is told by a caption box.
  bool is_shown;
};

// clang-format off
inline constexpr ShieldedEntry kShieldedEntries[] = {
    {"command action",      "ProCmdActionAdd",                  &probe::Command,      PRO_TK_GENERAL_ERROR, true},
    {"access rule",         "ProCmdActionAdd",                  &probe::Access,       ACCESS_UNAVAILABLE,   false},
    {"popup access",        "ProPopupmenuButtonAdd",            &probe::PopupAccess,  ACCESS_UNAVAILABLE,   false},
    {"popup notification",  "ProNotificationSet",               &probe::Notification, PRO_TK_GENERAL_ERROR, false},
    {"dialog action",       "ProUIPushbuttonActivateActionSet", &probe::DialogButton, 0,                    true},
    {"dialog close action", "ProUIDialogCloseActionSet",        &probe::DialogButton, 0,                    true},
    {"radio group action",  "ProUIRadiogroupSelectActionSet",   &probe::DialogButton, 0,                    true},
    {"table action",        "ProUITableActivateActionSet",      &probe::DialogButton, 0,                    true},
    {"cell action",         "ProUITableArmActionSet",           &probe::DialogButton, 0,                    true},
    {"focus action",        "ProUIInputpanelFocusinActionSet",  &probe::DialogButton, 0,                    true},
    {"drawing area action", "ProUIDrawingareaPostmanagenotifyActionSet",
                                                                &probe::DialogButton, 0,                    true},
    {"timer",               "SetTimer",                         &probe::Timer,        0,                    false},
    {"entry",               "the host's loader",                &probe::Entry,        0,                    false},
};
// clang-format on

}  // namespace qm
