// The user at the workbench: answers whatever the plug-in asks while a command runs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workbench/session/session.h"
#include "workbench/session/user_requests.h"

namespace wb {

class LiveDialog;

// Every answer that is missing is the run's failure: the implementation records it and the host
// call goes on with the answer of a user who cancels.
class User {
 public:
  virtual ~User() = default;
  // Called while the dialog is active; returns when it has been ended.
  virtual void WorkDialog(LiveDialog& dialog) = 0;
  // No value: the user cancels.
  virtual std::optional<std::vector<PickedItem>> Pick(const PickRequest& request) = 0;
  virtual std::optional<std::string> ChooseFile(const FileRequest& request) = 0;
  virtual std::optional<std::string> AnswerPrompt(const std::string& prompt, int max_length) = 0;
  virtual std::optional<PlacementAnswer> PlaceComponent(const PlacementRequest& request) {
    static_cast<void>(request);
    return std::nullopt;
  }
  // A call of the plug-in begins; true: the user did something before it is carried out.
  virtual bool CallBegins(const char* function) {
    static_cast<void>(function);
    return false;
  }
  // Whether a macro is meant to be queued and left alone.
  virtual bool LeavesMacro(const std::string& macro) {
    static_cast<void>(macro);
    return false;
  }
  // Gives the id of the pressed button.
  virtual int AnswerMessageBox(const MessageBox& box) = 0;
};

}  // namespace wb
