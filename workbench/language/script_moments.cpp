// Counts calls for statements that wait for one.
#include "workbench/language/script_moments.h"

namespace wb {
namespace {

bool IsOf(const Statement& statement, std::string_view function) {
  const std::string& wanted = statement.Text("FUNCTION");
  return wanted == "any" || wanted == function;
}

}  // namespace

void ScriptMoments::Await(const Statement& statement, size_t depth) {
  awaited_.push_back({statement, depth});
}

std::vector<Statement> ScriptMoments::Reached(std::string_view function) {
  std::vector<Statement> reached;
  std::vector<Awaited> later;
  for (Awaited& awaited : awaited_) {
    if (IsOf(awaited.statement, function)) ++awaited.calls;
    if (awaited.calls == awaited.statement.Number("NTH")) {
      reached.push_back(std::move(awaited.statement));
    } else {
      later.push_back(std::move(awaited));
    }
  }
  awaited_ = std::move(later);
  return reached;
}

std::vector<ScriptMoments::Missed> ScriptMoments::Forget(size_t depth) {
  std::vector<Missed> missed;
  std::vector<Awaited> kept;
  for (Awaited& awaited : awaited_) {
    if (awaited.depth > depth) {
      missed.push_back({std::move(awaited.statement), awaited.calls});
    } else {
      kept.push_back(std::move(awaited));
    }
  }
  awaited_ = std::move(kept);
  return missed;
}

}  // namespace wb
