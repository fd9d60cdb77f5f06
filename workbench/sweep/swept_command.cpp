// Runs of a swept command.
#include "workbench/sweep/swept_command.h"

#include "workbench/script/script_runner.h"

namespace wb {

SweptCommand::SweptCommand(ScriptRun& run, const Statement& statement)
    : run_(run),
      statement_(statement),
      kept_lines_(run.host.trace.keep_lines),
      options_(run.host.options) {
  run.host.trace.keep_lines = true;
  run.lenient = true;
}

SweptCommand::~SweptCommand() {
  run_.host.trace.keep_lines = kept_lines_;
  run_.lenient = false;
}

CommandRun SweptCommand::RunOnce(const FaultPlan& plan) {
  run_.BeginMarks();
  if (plan.nth != 0) run_.host.faults.Order(plan);
  // One refusal must be borne, two need not.
  strikes_again_ = plan.nth != 0 && (plan.from_then_on || plan.second_nth != 0);
  CommandRun result;
  run_.user.Answering(statement_, statement_.block,
                      [&] { result = RunCommand(statement_.Text("COMMAND")); });
  return result;
}

std::vector<std::string> SweptCommand::Complaints(const CommandRun& result) {
  std::vector<std::string> complaints = run_.TakeComplaints();
  // After a creation that only claims to have succeeded every use of the dialog is a misuse.
  if (run_.host.faults.HasStruck("ProUIDialogCreate")) {
    std::erase_if(complaints, [](const std::string& complaint) {
      return complaint.find("there is no dialog") != std::string::npos;
    });
  }
  for (const std::string& left : result.left_out) complaints.push_back("left out " + left);
  CheckRestored(result, &complaints);
  if (!result.known) complaints.push_back("the plug-in has registered no such command");
  // What is still open would stand in the way of the next run.
  run_.host.dialogs.open.clear();
  run_.host.accounts.Clear();
  return complaints;
}

std::vector<std::string> SweptCommand::ComplaintsOfClean(const CommandRun& clean) {
  changes_directory_ = clean.directory_before != clean.directory_after;
  options_after_ = run_.host.options;
  return Complaints(clean);
}

std::vector<std::filesystem::path> SweptCommand::Folders() const {
  return {run_.folders.work, run_.folders.desktop, run_.Installed() / "QMconfig",
          run_.Installed() / "tp"};
}

void SweptCommand::CheckRestored(const CommandRun& result,
                                 std::vector<std::string>* complaints) const {
  if (ignores_restoring_) return;
  const auto cannot_restore = [&](const char* function) {
    return strikes_again_ && run_.host.faults.HasStruck(function);
  };
  const bool may_change = changes_directory_ || cannot_restore("ProDirectoryChange");
  if (!may_change && result.directory_before != result.directory_after) {
    complaints->push_back("the working directory was left changed");
  }
  const bool option_changed = run_.host.options != options_ && run_.host.options != options_after_;
  if (option_changed && !cannot_restore("ProConfigoptSet"))
    complaints->push_back("an option was left changed");
}

}  // namespace wb
