// Runs one command again and again, failing its 1st, 2nd, 3rd ... call, until it runs clean.
#pragma once

#include <filesystem>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "workbench/script/script_snapshot.h"
#include "workbench/sweep/run_outcome.h"
#include "workbench/sweep/swept_command.h"

namespace wb {

class ScriptRun;
struct Statement;

// Each call is failed once and from then on, with a general error, with bad inputs and with an
// empty success, and some calls in pairs; the session is put back after each run, which is proved.
class Sweep {
 public:
  Sweep(ScriptRun& run, const Statement& statement);
  // One check for the whole sweep; a failure for each run that went wrong, up to a bound.
  void Run();

 private:
  struct Kind;
  void RunClean();
  // One kind of fault at call 1, 2, 3 ...
  void RunKind(const Kind& kind);
  // The first kind, and one of the others in turn, at some calls of every function.
  void RunSample(std::span<const Kind> kinds);
  bool RunAt(long nth, const Kind& kind);
  void RunPairs();
  // False when the fault did not strike: the command makes fewer calls.
  bool RunOne(const FaultPlan& plan, const std::string& which);
  // Models after failing statuses, whatever was told.
  void CheckValues(const RunOutcome& outcome, const FaultPlan& plan,
                   std::vector<std::string>* complaints) const;
  void CheckOutcome(const RunOutcome& outcome, const FaultPlan& plan,
                    std::vector<std::string>* complaints) const;
  void PutBack(const RunOutcome& outcome, std::vector<std::string>* complaints);
  // Where `at` the same has been told before, the run is only counted. Of each function one is told
  // whatever the bound.
  void Tell(const std::string& which, const std::string& at,
            const std::vector<std::string>& complaints);

  ScriptRun& run_;
  const Statement& statement_;
  SweptCommand command_;
  const std::vector<std::filesystem::path> folders_;
  const SessionSnapshot start_;
  const SessionState before_;
  RunOutcome clean_;
  std::vector<std::string> census_;  // the function of each call without any fault
  long faults_ = 0;
  int bad_runs_ = 0;
  std::set<std::string> told_;
  std::set<std::string> told_functions_;
};

}  // namespace wb
