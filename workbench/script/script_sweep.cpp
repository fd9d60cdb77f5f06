// Sweeps of faults.
#include "workbench/script/script_sweep.h"

#include <cstdio>

#include "workbench/base/text.h"
#include "workbench/script/script_runner.h"
#include "workbench/script/script_snapshot.h"
#include "workbench/script/script_watch.h"

namespace wb {
namespace {

// A command that makes more calls than this on a small model goes round in circles.
constexpr long kMostCalls = 100000;

}  // namespace

struct Sweep::Kind {
  const char* name;
  FaultKind kind;
  int status;
  bool from_then_on;
};

Sweep::Sweep(ScriptRun& run, const Statement& statement)
    : run_(run), statement_(statement), command_(run, statement) {}

void Sweep::Run() {
  static constexpr Kind kKinds[] = {
      {"general_error", FaultKind::kStatus, PRO_TK_GENERAL_ERROR, false},
      {"general_error from_then_on", FaultKind::kStatus, PRO_TK_GENERAL_ERROR, true},
      {"bad_inputs", FaultKind::kStatus, PRO_TK_BAD_INPUTS, false},
      {"bad_inputs from_then_on", FaultKind::kStatus, PRO_TK_BAD_INPUTS, true},
      {"empty", FaultKind::kEmptySuccess, 0, false},
      {"empty from_then_on", FaultKind::kEmptySuccess, 0, true},
  };
  const SessionSnapshot start(run_.host, command_.Folders());
  const CommandRun clean = command_.RunOnce({});
  for (const std::string& complaint : command_.ComplaintsOfClean(clean)) {
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
  const SessionSnapshot start(run_.host, command_.Folders());
  for (long nth = 1; nth < kMostCalls; ++nth) {
    FaultPlan plan;
    plan.windows_too = true;
    plan.nth = nth;
    plan.from_then_on = kind.from_then_on;
    plan.kind = kind.kind;
    plan.status = kind.status;
    const std::string which = std::string("fault any ") + std::to_string(nth) + " " + kind.name;
    NotePlace(statement_.Place() + ", " + which);
    const CommandRun result = command_.RunOnce(plan);
    const long struck = run_.host.faults.struck();
    run_.host.faults.Clear();
    const std::string function = FunctionOfCall(nth);
    const std::vector<std::string> complaints = command_.Complaints(result, function);
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

std::string Sweep::FunctionOfCall(long nth) const {
  for (const Crossed& line : run_.host.trace.lines()) {
    if (line.call == nth) return line.function;
  }
  return "";
}

}  // namespace wb
