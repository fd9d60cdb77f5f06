// Works the parameter dialog the way a user does.
#include "workbench/bench_user.h"

#include <stdexcept>

#include "workbench/bench_walk.h"
#include "workbench/host.h"

namespace wb {
namespace {

void Require(const UserOutcome& outcome) {
  if (!outcome.Done()) throw std::runtime_error(outcome.refusal);
}

void Press(LiveDialog& dialog, const char* button) {
  Require(dialog.state.UserPress(button));
  if (!dialog.Fire(button, kActivateEvent)) {
    throw std::runtime_error(std::string("nothing is bound to the button ") + button);
  }
}

void FillIn(Dialog& dialog) {
  Require(dialog.UserSelect("TypeRadio", {"AsmAndPart"}));
  Require(dialog.UserSetField("ParaName", kBenchParameter));
  Require(dialog.UserSetField("ParaValue", "1"));
  Require(dialog.UserSelect("PtypeOption", {"整数"}));
  Require(dialog.UserSetField("InputKeyWords", ""));
}

[[noreturn]] void Unexpected(const std::string& question) {
  throw std::runtime_error("unexpected question: " + question);
}

}  // namespace

void BenchUser::WorkDialog(LiveDialog& dialog) {
  FillIn(dialog.state);
  const Trace& trace = TheHost().trace;
  const long calls_before = trace.calls();
  const auto start = std::chrono::steady_clock::now();
  Press(dialog, "Add");
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  press_ = {trace.calls() - calls_before, seconds.count()};
  Press(dialog, "Close");
}

std::optional<std::vector<PickedItem>> BenchUser::Pick(const PickRequest& request) {
  Unexpected("pick of " + request.filter);
}

std::optional<std::string> BenchUser::ChooseFile(const FileRequest& request) {
  Unexpected("file for " + request.asked_by);
}

std::optional<std::string> BenchUser::AnswerPrompt(const std::string& prompt, int) {
  Unexpected("prompt \"" + prompt + "\"");
}

int BenchUser::AnswerMessageBox(const MessageBox& box) {
  Unexpected("box \"" + box.text + "\"");
}

}  // namespace wb
