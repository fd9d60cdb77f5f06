// Statements that order faults; the option of the command line is read as the one it stands for.
#include "workbench/statements/fault_statements.h"

#include <algorithm>

#include "workbench/base/command_line.h"
#include "workbench/language/script_words.h"
#include "workbench/script/script_calls.h"
#include "workbench/script/script_runner.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

constexpr const char* kAllocationPattern = "fault allocation NTH [from_then_on]";
constexpr const char* kEmptyPairPattern = "fault FUNCTION NTH and SECOND empty";
constexpr const char* kEmptyPattern = "fault FUNCTION NTH empty [from_then_on]";
constexpr const char* kPairPattern = "fault FUNCTION NTH and SECOND status STATUS";
constexpr const char* kStatusPattern =
    "fault FUNCTION NTH status STATUS [from_then_on] [telling_spared]";

// In place of a function: all of the host's, or all crossings, Windows' among them.
constexpr const char* kAnyFunction = "any";
constexpr const char* kAnyCrossing = "crossing";

// Ends the script for a function that no call can bear.
FaultPlan FaultOf(const Statement& statement) {
  const std::string& function = statement.Text("FUNCTION");
  FaultPlan plan;
  plan.windows_too = function == kAnyCrossing;
  if (!plan.windows_too) CheckFunctions(statement);
  if (!plan.windows_too && function != kAnyFunction) plan.function = function;
  plan.nth = statement.Number("NTH");
  plan.from_then_on = statement.Has("from_then_on");
  plan.spares_telling = statement.Has("telling_spared");
  if (statement.Has("SECOND")) plan.second_nth = statement.Number("SECOND");
  if (statement.Has("empty")) {
    plan.kind = FaultKind::kEmptySuccess;
  } else {
    plan.status = *NumberOf(StatusWords(), statement.Text("STATUS"));
  }
  return plan;
}

FaultPlan AllocationFaultOf(const Statement& statement) {
  FaultPlan plan;
  plan.kind = FaultKind::kNoMemory;
  plan.nth = statement.Number("NTH");
  plan.from_then_on = statement.Has("from_then_on");
  return plan;
}

void FaultNone(ScriptRun& run, const Statement&) {
  run.fault = {};
}

void OrderFault(ScriptRun& run, const Statement& statement) {
  run.fault = FaultOf(statement);
}

void OrderAllocationFault(ScriptRun& run, const Statement& statement) {
  run.fault = AllocationFaultOf(statement);
}

// clang-format off
constexpr StatementForm kFaultForms[] = {
    {"fault none",       kTopPlace, &FaultNone},
    {kAllocationPattern, kTopPlace, &OrderAllocationFault},
    {kEmptyPairPattern,  kTopPlace, &OrderFault},
    {kEmptyPattern,      kTopPlace, &OrderFault},
    {kPairPattern,       kTopPlace, &OrderFault},
    {kStatusPattern,     kTopPlace, &OrderFault},
};
// clang-format on

[[noreturn]] void Refuse(const std::string& text, const std::string& why) {
  throw UsageError(
      "--fault " + text + ": " + why +
      "; it wants FUNCTION:NTH:STATUS, for example ProMdlNameGet:2:general_error or, "
      "with any function, an empty success and no end, any:5:empty:from_then_on, or, with "
      "Windows' functions among them and a second one, crossing:5:and:7:general_error, or, for "
      "the plug-in's own memory, allocation:5[:from_then_on]");
}

bool IsOfAllocations(const std::vector<ScriptWord>& words) {
  return words.size() > 1 && words[1].text == "allocation";
}

bool IsOfPair(const std::vector<ScriptWord>& words) {
  return words.size() > 3 && words[3].text == "and";
}

// "A:2:empty" as the words of "fault A 2 empty"; before another status than "empty" the statement
// has one more word.
std::vector<ScriptWord> StatementWords(const std::string& text) {
  std::vector<ScriptWord> words = {{"fault"}};
  for (size_t at = 0; at <= text.size();) {
    const size_t colon = std::min(text.find(':', at), text.size());
    words.push_back({text.substr(at, colon - at)});
    at = colon + 1;
  }
  const size_t status_place = IsOfPair(words) ? 5 : 3;
  const bool is_cut_short = words.size() < status_place;
  if (!is_cut_short && !IsOfAllocations(words) &&
      (words.size() == status_place || words[status_place].text != "empty")) {
    words.insert(words.begin() + static_cast<long>(status_place), {"status"});
  }
  return words;
}

const char* PatternFor(const std::vector<ScriptWord>& words) {
  if (IsOfAllocations(words)) return kAllocationPattern;
  const bool empty = words.back().text == "empty" || words[words.size() - 2].text == "empty";
  if (IsOfPair(words)) return empty ? kEmptyPairPattern : kPairPattern;
  return empty ? kEmptyPattern : kStatusPattern;
}

}  // namespace

StatementForms FaultStatements() {
  return kFaultForms;
}

FaultPlan FaultOption(const std::string& text) {
  if (text.empty()) return {};
  const std::vector<ScriptWord> words = StatementWords(text);
  PatternMatch match = MatchPattern(CompilePattern(PatternFor(words)), words);
  if (!match.matched) Refuse(text, match.problem);
  Statement statement;
  statement.arguments = std::move(match.arguments);
  if (IsOfAllocations(words)) return AllocationFaultOf(statement);
  try {
    return FaultOf(statement);
  } catch (const ScriptError& error) {
    Refuse(text, error.what());
  }
}

}  // namespace wb
