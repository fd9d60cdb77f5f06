// Runs one command again and again, failing its 1st, 2nd, 3rd ... call, until it runs clean.
#pragma once

#include <string>

#include "workbench/script/swept_command.h"

namespace wb {

class ScriptRun;
struct Statement;

// Each call is failed once and from then on, with a general error, with bad inputs and with an
// empty success; the session is put back after each run.
class Sweep {
 public:
  Sweep(ScriptRun& run, const Statement& statement);
  // One check for the whole sweep; a failure for each run that went wrong, up to a bound.
  void Run();

 private:
  struct Kind;
  // One kind of fault at call 1, 2, 3 ...
  void RunKind(const Kind& kind);
  std::string FunctionOfCall(long nth) const;

  ScriptRun& run_;
  const Statement& statement_;
  SweptCommand command_;
  long faults_ = 0;
  int bad_runs_ = 0;
};

}  // namespace wb
