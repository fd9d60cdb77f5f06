// A user who is not there.
#pragma once

#include "workbench/host/user.h"

namespace wb {

// Reads boxes away, closes nothing and chooses nothing.
class AbsentUser : public User {
 public:
  void WorkDialog(LiveDialog&) override {}
  std::optional<std::vector<PickedItem>> Pick(const PickRequest&) override { return std::nullopt; }
  std::optional<std::string> ChooseFile(const FileRequest&) override { return std::nullopt; }
  std::optional<std::string> AnswerPrompt(const std::string&, int) override { return std::nullopt; }
  int AnswerMessageBox(const MessageBox&) override { return 1; }
};

}  // namespace wb
