// Runs one command again and again, failing the plug-in's 1st, 2nd, 3rd ... allocation, once and
// from then on.
#pragma once

#include <string>
#include <vector>

#include "workbench/script/script_snapshot.h"
#include "workbench/sweep/run_outcome.h"
#include "workbench/sweep/swept_command.h"

namespace wb {

struct MemorySweepOptions;

// Beside what every sweep asks, the command must do its work all the same, or refuse it whole, or
// say something.
class MemorySweep {
 public:
  MemorySweep(ScriptRun& run, const Statement& statement);
  void Run(const MemorySweepOptions& options);

 private:
  struct Judged {
    RunOutcome outcome;
    std::vector<std::string> complaints;
    long allocations = 0;
    long struck = 0;
  };

  void RunWarm(bool all);
  void RunKind(const std::vector<long>& places, bool from_then_on);
  void RunFirst(const MemorySweepOptions& options);
  // The session is put back afterwards.
  Judged RunOnce(long nth, bool from_then_on);
  Judged RunClean();
  void Tell(const std::string& which, const std::vector<std::string>& complaints);

  ScriptRun& run_;
  const Statement& statement_;
  SweptCommand command_;
  const SessionSnapshot start_;
  const std::vector<std::filesystem::path> folders_;
  const SessionState before_;
  RunOutcome clean_;
  long faults_ = 0;
  int bad_runs_ = 0;
};

}  // namespace wb
