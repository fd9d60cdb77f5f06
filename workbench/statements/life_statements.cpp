// Statements on the plug-in's life and on commands.
#include "workbench/plugin/timers.h"
#include "workbench/script/script_faults.h"
#include "workbench/script/script_record.h"
#include "workbench/script/script_runner.h"
#include "workbench/script/script_sweep.h"

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
    run.Fail(statement, "the plug-in has registered no command " + command);
  } else if (!result.available) {
    run.Fail(statement, command + " is not available here");
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
  run.EnsureStarted();
  Sweep(run, statement).Run();
}

void AwaitCall(ScriptRun& run, const Statement& statement) {
  CheckFunctions(statement);
  run.user.Await(statement);
}

void FaultNone(ScriptRun& run, const Statement&) {
  run.fault = {};
}

void OrderFault(ScriptRun& run, const Statement& statement) {
  run.fault = FaultOf(statement);
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

constexpr ScriptHandler kHandlers[] = {
    {"start", &Start},       {"stop", &Stop},
    {"timers", &Timers},     {"popup", &CreatePopup},
    {"run", &Run},           {"run_with", &Run},
    {"sweep", &SweepFaults}, {"sweep_with", &SweepFaults},
    {"at_call", &AwaitCall}, {"fault_none", &FaultNone},
    {"fault", &OrderFault},  {"fault_empty", &OrderFault},
    {"withhold", &Withhold}, {"trace", &SwitchTrace},
};

}  // namespace

ScriptHandlers LifeStatements() {
  return kHandlers;
}

}  // namespace wb
