// A user who answers by chance: cancels, picks, types and presses what can be pressed, and closes
// every dialog in the end. The same seed and questions give the same answers.
#pragma once

#include <random>

#include "workbench/host/host.h"

namespace wb {

class RandomUser : public User {
 public:
  explicit RandomUser(Host& host) : host_(host) {}

  void Begin(unsigned seed) { chance_.seed(seed); }
  // From 0 on; 0 where there is nothing.
  size_t Below(size_t bound) { return bound == 0 ? 0 : chance_() % bound; }
  bool OneIn(size_t count) { return Below(count) == 0; }
  // Some components of the current model, to any depth; none where it has none.
  std::vector<PickedItem> SomeComponents();

  void WorkDialog(LiveDialog& dialog) override;
  std::optional<std::vector<PickedItem>> Pick(const PickRequest& request) override;
  std::optional<std::string> ChooseFile(const FileRequest& request) override;
  std::optional<std::string> AnswerPrompt(const std::string& prompt, int max_length) override;
  int AnswerMessageBox(const MessageBox& box) override;

 private:
  void DoSomething(LiveDialog& dialog);
  UserOutcome Touch(Dialog& dialog, const Field& field);
  void Close(LiveDialog& dialog);

  Host& host_;
  std::mt19937 chance_;
  int open_dialogs_ = 0;
};

}  // namespace wb
