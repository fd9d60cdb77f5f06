// Expectations on the calls that the last action made.
#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/language/script_words.h"
#include "workbench/script/script_calls.h"
#include "workbench/script/script_runner.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

long CountOf(const ScriptRun& run, const std::string& function) {
  return function == "any" ? run.host.trace.calls() : run.host.trace.Count(function);
}

void ExpectCalls(ScriptRun& run, const Statement& statement) {
  CheckFunctions(statement);
  const long got = CountOf(run, statement.Text("FUNCTION"));
  const long wanted = statement.Has("none") ? 0 : statement.Number("N");
  const bool at_most = statement.Has("at");
  run.Check(statement, at_most ? got <= wanted : got == wanted,
            "calls of " + statement.Text("FUNCTION"),
            (at_most ? "at most " : "") + std::to_string(wanted), std::to_string(got));
}

void ExpectCall(ScriptRun& run, const Statement& statement) {
  CheckFunctions(statement);
  std::vector<std::string> arguments;
  for (const Crossed& line : LinesInOrder(run)) {
    if (line.function == statement.Text("FUNCTION")) arguments.push_back(line.arguments);
  }
  const bool found = std::any_of(arguments.begin(), arguments.end(), [&](const std::string& text) {
    return text.find(statement.Text("TEXT")) != std::string::npos;
  });
  run.Check(statement, found, "call of " + statement.Text("FUNCTION"),
            "one with " + Quoted(statement.Text("TEXT")),
            arguments.empty() ? "no call" : Join(" | ", arguments));
}

void ExpectOrder(ScriptRun& run, const Statement& statement) {
  CheckFunctions(statement);
  const std::vector<std::string>& wanted = statement.Texts("FUNCTION");
  size_t met = 0;
  for (const Crossed& line : LinesInOrder(run)) {
    if (met < wanted.size() && line.function == wanted[met]) ++met;
  }
  run.Check(statement, met == wanted.size(), "order of calls", Join(" ", wanted),
            met == wanted.size()
                ? "it"
                : "no " + wanted[met] + " after the first " + std::to_string(met) + " of them");
}

const char* SelectionOptionWord(int option) {
  switch (option) {
    case PRO_SELECT_DONE_REQUIRED:
      return "done_required";
    case PRO_SELECT_BY_MENU_ALLOWED:
      return "by_menu";
    case PRO_SELECT_BY_BOX_ALLOWED:
      return "by_box";
    default:
      return "unknown";
  }
}

void ExpectEnvironment(ScriptRun& run, const Statement& statement) {
  std::vector<std::string> got;
  for (const PickOptions& asked : run.host.events.Since<PickOptions>(run.marks.begin)) {
    std::vector<std::string> options;
    for (const auto& [option, value] : asked.options) {
      options.push_back(std::string(SelectionOptionWord(option)) + "=" + std::to_string(value));
    }
    got.push_back(Join(" ", options));
  }
  run.CheckText(statement, "selection environment", statement.Text("TEXT"), Join(" | ", got));
}

void ExpectStatus(ScriptRun& run, const Statement& statement) {
  const int wanted = *NumberOf(StatusWords(), statement.Text("STATUS"));
  run.Check(statement, run.status == wanted, "status", statement.Text("STATUS"),
            WordOf(StatusWords(), run.status));
}

void ExpectFaults(ScriptRun& run, const Statement& statement) {
  run.Check(statement, run.faults_struck == statement.Number("N"), "faults that struck",
            statement.Text("N"), std::to_string(run.faults_struck));
}

// clang-format off
constexpr StatementForm kExpectCallsForms[] = {
    {"expect calls FUNCTION none",        kTopOrDialog, &ExpectCalls},
    {"expect calls FUNCTION at most N",   kTopOrDialog, &ExpectCalls},
    {"expect calls FUNCTION N",           kTopOrDialog, &ExpectCalls},
    {"expect call FUNCTION with TEXT",    kTopOrDialog, &ExpectCall},
    {"expect order FUNCTION...",          kTopOrDialog, &ExpectOrder},
    {"expect selection_environment TEXT", kTopOrDialog, &ExpectEnvironment},
    {"expect status STATUS",              kTopPlace,    &ExpectStatus},
    {"expect faults N",                   kTopPlace,    &ExpectFaults},
};
// clang-format on

}  // namespace

StatementForms CallExpectations() {
  return kExpectCallsForms;
}

}  // namespace wb
