// Moments in the middle of an action, told by the calls that the plug-in makes.
#pragma once

#include <string_view>
#include <vector>

#include "workbench/language/script_parser.h"

namespace wb {

class ScriptMoments {
 public:
  // `statement` is an "at call"; its calls count from now on, while the block it stands in, the
  // `depth`-th from outside, lasts.
  void Await(const Statement& statement, size_t depth);

  // A call of `function` begins: gives the statements whose moment it is. Each comes once.
  std::vector<Statement> Reached(std::string_view function);

  struct Missed {
    Statement statement;
    int calls;  // of its function, all too few
  };
  // Those that were awaited deeper than `depth`, and that are awaited no longer.
  std::vector<Missed> Forget(size_t depth);

 private:
  struct Awaited {
    Statement statement;
    size_t depth;
    int calls = 0;
  };
  std::vector<Awaited> awaited_;
};

}  // namespace wb
