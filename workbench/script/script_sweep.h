// Runs one command again and again, failing its 1st, 2nd, 3rd ... call, until it runs clean.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "workbench/checks/faults.h"
#include "workbench/plugin/plugin.h"

namespace wb {

class ScriptRun;
struct Statement;

// Each call is failed once and from then on, with a general error, with bad inputs and with an
// empty success; the session is put back after each run. Under faults the plug-in may say and ask
// what it likes, but it must misuse nothing, leave nothing out, and leave the working directory and
// the options as it would without faults.
class Sweep {
 public:
  Sweep(ScriptRun& run, const Statement& statement);
  // One check for the whole sweep; a failure for each run that went wrong, up to a bound.
  void Run();

 private:
  struct Kind;
  // One kind of fault at call 1, 2, 3 ...
  void RunKind(const Kind& kind);
  CommandRun RunOnce(const FaultPlan& plan);
  // `struck` is the function that the fault struck first, "" for none.
  std::vector<std::string> Complaints(const CommandRun& result, const std::string& struck);
  std::string FunctionOfCall(long nth) const;
  void CheckRestored(const CommandRun& result, std::vector<std::string>* complaints) const;

  ScriptRun& run_;
  const Statement& statement_;
  const std::map<std::string, std::vector<std::string>> options_;  // before the sweep
  bool changes_directory_ = false;  // the command does so without any fault
  long faults_ = 0;
  int bad_runs_ = 0;
};

}  // namespace wb
