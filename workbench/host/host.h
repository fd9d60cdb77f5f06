// The workbench's host: everything the exported functions act on, in one place.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <unordered_set>
#include <vector>

#include "workbench/checks/accounts.h"
#include "workbench/checks/faults.h"
#include "workbench/checks/handles.h"
#include "workbench/checks/trace.h"
#include "workbench/host/automation.h"
#include "workbench/host/commands.h"
#include "workbench/host/events.h"
#include "workbench/host/file_writers.h"
#include "workbench/host/habits.h"
#include "workbench/host/live_dialog.h"
#include "workbench/host/message_area.h"
#include "workbench/host/user.h"
#include "workbench/host/windows_calls.h"
#include "workbench/session/session.h"

namespace wb {

struct Host {
  Host();
  ~Host();
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  Session session;
  HandleTable handles;
  Accounts accounts;
  Trace trace;
  Faults faults;
  Commands commands;
  Dialogs dialogs;
  Events events;
  MessageArea messages{events};
  WindowsCalls windows;
  AutomationProgram* automation = nullptr;  // null: no program is registered
  User* user = nullptr;

  std::filesystem::path install_folder;  // holds the DLL, text/, resource/ and QMconfig/
  std::string release = "30";            // as the plug-in is told at its start
  std::string language = "chinese_cn";   // folder of the message files
  std::map<std::string, std::vector<std::string>> options;  // configuration options, lower case
  Habits habits;
  FileWriters writers;
  bool companion_is_missing = false;  // who else makes the files of other programs real
  int forced_mode = -1;               // mode to report; -1: by the current model

  std::unordered_set<PickedItem*> picked;  // live selections
  std::vector<void*> last_picks;           // selection handles of the last interactive pick

  std::vector<ModelName> leaving;  // erased, but their names are taken until control is back

  std::string running_command;  // empty: the plug-in is idle
  size_t command_began = 0;     // the mark of the events since the last command's start
  unsigned long ui_thread = 0;

  // Erased models count until the plug-in's action has come back.
  bool IsTaken(const ModelName& name);
  void ReportBreach(const std::string& function, const std::string& why);
  bool OnUiThread() const;
  // An action of the plug-in has come back: what waited for that is done, and nothing that it has
  // started or queued may be left.
  void ControlIsBack();
  // What the plug-in has queued becomes an event of its own.
  void TakeInput();
  // Confirms a dialog that opens now; false: no click of the plug-in's waits for one.
  bool TakeMiddleClick();
  // Whether the user did something at this moment, in the middle of a call of `function`.
  bool LetUserIn(const char* function);
  // Ends every handle to a model that leaves the session and to what is inside it.
  void Forget(Model& model);
  // Where a dialog's resource or an icon lies.
  std::filesystem::path ResourceFile(const std::filesystem::path& name) const;
  // What a handle stands for, for traces: "part bolt".
  std::string DescribeHandle(const void* handle) const;
};

// The host that the exported functions serve. There is at most one at a time, since the plug-in
// finds its host by process.
Host& TheHost();
bool HasHost();

}  // namespace wb
