// Sweeps of faults.
#include "workbench/script/script_sweep.h"

#include <cstdio>

#include "workbench/base/text.h"
#include "workbench/script/script_runner.h"
#include "workbench/script/script_snapshot.h"
#include "workbench/script/script_watch.h"

namespace wb {
namespace {

// One mistake tends to show at many calls; these many are told in full.
constexpr int kMostToldRuns = 10;
// A command that makes more calls than this on a small model goes round in circles.
constexpr long kMostCalls = 100000;

}  // namespace

struct Sweep::Kind {
  const char* name;
  FaultKind kind;
  int status;
  bool from_then_on;
};

namespace {

// For the length of a sweep: boxes are no failures.
class Leniency {
 public:
  explicit Leniency(ScriptRun& run) : run_(run), kept_lines_(run.host.trace.keep_lines) {
    run.host.trace.keep_lines = true;
    run.lenient = true;
  }
  ~Leniency() {
    run_.host.trace.keep_lines = kept_lines_;
    run_.lenient = false;
  }
  Leniency(const Leniency&) = delete;
  Leniency& operator=(const Leniency&) = delete;

 private:
  ScriptRun& run_;
  bool kept_lines_;
};

}  // namespace

Sweep::Sweep(ScriptRun& run, const Statement& statement)
    : run_(run), statement_(statement), options_(run.host.options) {}

void Sweep::Run() {
  static constexpr Kind kKinds[] = {
      {"general_error", FaultKind::kStatus, PRO_TK_GENERAL_ERROR, false},
      {"general_error from_then_on", FaultKind::kStatus, PRO_TK_GENERAL_ERROR, true},
      {"bad_inputs", FaultKind::kStatus, PRO_TK_BAD_INPUTS, false},
      {"bad_inputs from_then_on", FaultKind::kStatus, PRO_TK_BAD_INPUTS, true},
      {"empty", FaultKind::kEmptySuccess, 0, false},
      {"empty from_then_on", FaultKind::kEmptySuccess, 0, true},
  };
  const Leniency leniency(run_);
  const SessionSnapshot start(run_.host, {run_.folders.work, run_.Installed() / "QMconfig"});
  const CommandRun clean = RunOnce({});
  changes_directory_ = clean.directory_before != clean.directory_after;
  for (const std::string& complaint : Complaints(clean, "")) {
    ++bad_runs_;
    run_.Fail(statement_, complaint + " (without any fault)");
  }
  start.Restore(run_.host);
  for (const Kind& kind : kKinds) RunKind(kind);
  std::printf("%s: sweep of %s: %ld faults, %d bad runs\n", statement_.Place().c_str(),
              statement_.Text("COMMAND").c_str(), faults_, bad_runs_);
  if (bad_runs_ == 0) run_.Pass();
}

void Sweep::RunKind(const Kind& kind) {
  const SessionSnapshot start(run_.host, {run_.folders.work, run_.Installed() / "QMconfig"});
  for (long nth = 1; nth < kMostCalls; ++nth) {
    FaultPlan plan;
    plan.windows_too = true;
    plan.nth = nth;
    plan.from_then_on = kind.from_then_on;
    plan.kind = kind.kind;
    plan.status = kind.status;
    const std::string which = std::string("fault any ") + std::to_string(nth) + " " + kind.name;
    NotePlace(statement_.Place() + ", " + which);
    const CommandRun result = RunOnce(plan);
    const long struck = run_.host.faults.struck();
    run_.host.faults.Clear();
    const std::string function = FunctionOfCall(nth);
    const std::vector<std::string> complaints = Complaints(result, function);
    start.Restore(run_.host);
    if (struck == 0) return;
    ++faults_;
    if (!complaints.empty() && ++bad_runs_ <= kMostToldRuns) {
      run_.Fail(statement_, which + " (" + run_.host.trace.last() +
                                " was the last call): " + Join("; ", complaints));
    }
  }
  run_.Fail(statement_, "the command makes more than " + std::to_string(kMostCalls) + " calls");
}

CommandRun Sweep::RunOnce(const FaultPlan& plan) {
  run_.BeginMarks();
  if (plan.nth != 0) run_.host.faults.Order(plan);
  CommandRun result;
  run_.user.Answering(statement_, statement_.block,
                      [&] { result = RunCommand(statement_.Text("COMMAND")); });
  return result;
}

std::string Sweep::FunctionOfCall(long nth) const {
  for (const Crossed& line : run_.host.trace.lines()) {
    if (line.call == nth) return line.function;
  }
  return "";
}

std::vector<std::string> Sweep::Complaints(const CommandRun& result, const std::string& struck) {
  std::vector<std::string> complaints = run_.TakeComplaints();
  // After a creation that only claims to have succeeded every use of the dialog is a misuse.
  if (struck == "ProUIDialogCreate") {
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

void Sweep::CheckRestored(const CommandRun& result, std::vector<std::string>* complaints) const {
  if (!changes_directory_ && result.directory_before != result.directory_after) {
    complaints->push_back("the working directory was left changed");
  }
  if (run_.host.options != options_) complaints->push_back("an option was left changed");
}

}  // namespace wb
