// Dialogs that the plug-in has created, with the actions bound to their components.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "workbench/dialog/dialog.h"

namespace wb {

struct BoundAction {
  void* function = nullptr;  // ProUIAction
  void* data = nullptr;
};

// One created dialog: the state of its components plus what the plug-in bound to it.
class LiveDialog {
 public:
  LiveDialog(std::string dialog_name, DialogResource resource)
      : name(std::move(dialog_name)), state(std::move(resource)) {}

  const std::string name;
  Dialog state;
  bool active = false;
  bool ended = false;  // ProUIDialogExit was called while active
  int exit_status = 0;
  bool above_active_window = false;  // kept above the window that a model is shown in
  std::map<std::pair<std::string, std::string>, BoundAction> actions;  // component, event

  // Forgets what is bound to the events of `component`.
  void Unbind(const std::string& component);
  // Calls what is bound to `event` of `component` ("" = the dialog itself); false: nothing bound.
  bool Fire(const std::string& component, const std::string& event);
};

inline constexpr const char* kActivateEvent = "activate";
inline constexpr const char* kCloseEvent = "close";
inline constexpr const char* kSelectEvent = "select";
inline constexpr const char* kArmEvent = "arm";
inline constexpr const char* kFocusInEvent = "focus-in";
inline constexpr const char* kPostManageEvent = "post-manage";

// A dialog as the user last saw it, kept for the report.
struct DialogPicture {
  std::string name;
  std::string html;
};

class Dialogs {
 public:
  LiveDialog* Find(const std::string& name);
  std::map<std::string, std::unique_ptr<LiveDialog>> open;
  std::vector<DialogPicture> pictures;
};

}  // namespace wb
