// The user of the benchmark: adds one parameter in the dialog of QmParams and answers nothing else.
#pragma once

#include <chrono>

#include "workbench/trace.h"
#include "workbench/user.h"

namespace wb {

// The press of Add, as it was seen from outside.
struct BenchPress {
  long calls = 0;
  double seconds = 0;
};

// Every question that a benchmark does not expect throws std::runtime_error.
class BenchUser : public User {
 public:
  void WorkDialog(LiveDialog& dialog) override;
  std::optional<std::vector<PickedItem>> Pick(const PickRequest& request) override;
  std::optional<std::string> ChooseFile(const FileRequest& request) override;
  std::optional<std::string> AnswerPrompt(const std::string& prompt, int max_length) override;
  int AnswerMessageBox(const MessageBox& box) override;

  // The latest press.
  const BenchPress& press() const { return press_; }

 private:
  BenchPress press_;
};

}  // namespace wb
