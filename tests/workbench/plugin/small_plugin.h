// What every little test plug-in shares: its two entries, and the registration of its commands.
// Each source defines RegisterCommands and its commands; an action's answer is the command's
// status.
#pragma once

// These plug-ins are here to break the rule that no exception leaves a callback.
#define QM_CALLBACK

#include "toolkit/array.h"
#include "toolkit/command.h"
#include "toolkit/feature.h"
#include "toolkit/message.h"
#include "toolkit/model.h"
#include "toolkit/selection.h"
#include "toolkit/types.h"
#include "toolkit/ui.h"
#include "toolkit/window.h"

void RegisterCommands();

inline uiCmdAccessState AlwaysAvailable(uiCmdAccessMode) {
  return ACCESS_AVAILABLE;
}

template <int (*Action)()>
void Register(const char* name) {
  uiCmdCmdId command = nullptr;
  ProCmdActionAdd(
      name, [](uiCmdCmdId, uiCmdValue*, void*) { return Action(); }, 2, &AlwaysAvailable,
      PRO_B_FALSE, PRO_B_FALSE, &command);
}

extern "C" __declspec(dllexport) int user_initialize(int, char**, char*, char*, wchar_t*) {
  RegisterCommands();
  return 0;
}

extern "C" __declspec(dllexport) void user_terminate() {}
