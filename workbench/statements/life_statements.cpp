// Statements on the plug-in's life and on commands.
#include "workbench/plugin/timers.h"
#include "workbench/reasons/access_reason.h"
#include "workbench/script/script_calls.h"
#include "workbench/script/script_record.h"
#include "workbench/script/script_runner.h"
#include "workbench/statements/statement_families.h"
#include "workbench/sweep/fault_sweep.h"
#include "workbench/sweep/memory_sweep.h"

namespace wb {
namespace {

void Start(ScriptRun& run, const Statement& statement) {
  run.Act(statement, [&] { run.Start(); });
}

void Stop(ScriptRun& run, const Statement& statement) {
  run.Act(statement, [&] { run.Stop(statement); });
}

void Timers(ScriptRun& run, const Statement& statement) {
  run.EnsureStarted();
  run.Act(statement, [&] { FireTimers(); });
}

void CreatePopup(ScriptRun& run, const Statement& statement) {
  run.EnsureStarted();
  run.Act(statement, [&] { run.popup = FirePopup(statement.Text("NAME")); });
}

void ReportRun(ScriptRun& run, const Statement& statement, const CommandRun& result) {
  const std::string& command = statement.Text("COMMAND");
  run.status = result.status;
  if (!result.known) {
    run.Fail(statement,
             "the plug-in has registered no command " + command + CommandMeant(run.host, command));
  } else if (!result.available) {
    run.Fail(statement, command + " is not available here: " + WhyUnavailable(run.host, command));
  }
  for (const std::string& left : result.left_out) {
    run.Fail(statement, command + " left out " + left);
  }
}

// The user runs a second command while a dialog of the first is open.
void RunInside(ScriptRun& run, const Statement& statement) {
  run.user.Answering(statement, statement.block,
                     [&] { ReportRun(run, statement, RunCommand(statement.Text("COMMAND"))); });
}

void Run(ScriptRun& run, const Statement& statement) {
  if (!run.host.running_command.empty()) {
    RunInside(run, statement);
    return;
  }
  run.EnsureStarted();
  CommandRecorder recorder(run, statement);
  run.Act(statement, [&] {
    const CommandRun result = RunCommand(statement.Text("COMMAND"));
    ReportRun(run, statement, result);
    recorder.Note(result);
  });
}

void SweepFaults(ScriptRun& run, const Statement& statement) {
  // What is to be a first run would be none behind it.
  if (run.options.memory.first_run_line != 0) return;
  run.EnsureStarted();
  Sweep(run, statement).Run();
}

void SweepAllocations(ScriptRun& run, const Statement& statement) {
  const MemorySweepOptions& options = run.options.memory;
  if (options.first_run_line != 0 && options.first_run_line != statement.line) return;
  run.EnsureStarted();
  MemorySweep(run, statement).Run(options);
}

void Withhold(ScriptRun& run, const Statement& statement) {
  CheckFunctions(statement);
  for (const std::string& function : statement.Texts("FUNCTION")) {
    run.host.windows.withheld.insert(function);
  }
}

void SwitchTrace(ScriptRun& run, const Statement& statement) {
  run.host.trace.keep_lines = statement.Text("STATE") == "on";
}

// clang-format off
constexpr StatementForm kLifeForms[] = {
    {"start",                kTopPlace,    &Start},
    {"stop",                 kTopPlace,    &Stop},
    {"timers",               kTopPlace,    &Timers},
    {"popup NAME",           kTopPlace,    &CreatePopup},
    {"run COMMAND with",     kTopOrDialog, &Run, kAnswerPlace},
    {"run COMMAND",          kTopOrDialog, &Run},
    {"sweep allocations of COMMAND with", kTopPlace, &SweepAllocations, kAnswerPlace},
    {"sweep allocations of COMMAND", kTopPlace, &SweepAllocations},
    {"sweep COMMAND with",   kTopPlace,    &SweepFaults, kAnswerPlace},
    {"sweep COMMAND",        kTopPlace,    &SweepFaults},
    {"withhold FUNCTION...", kTopPlace,    &Withhold},
    {"trace STATE:on|off",   kTopPlace,    &SwitchTrace},
};
// clang-format on

}  // namespace

StatementForms LifeStatements() {
  return kLifeForms;
}

}  // namespace wb
