// The option of the command line is read as the statement it stands for.
#include "workbench/script/script_faults.h"

#include <algorithm>

#include "workbench/base/command_line.h"
#include "workbench/language/script_words.h"
#include "workbench/script/script_runner.h"

namespace wb {
namespace {

[[noreturn]] void Refuse(const std::string& text, const std::string& why) {
  throw UsageError("--fault " + text + ": " + why +
                   "; it wants FUNCTION:NTH:STATUS, for example ProMdlNameGet:2:general_error or, "
                   "with any function, an empty success and no end, any:5:empty:from_then_on");
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
  constexpr size_t kStatusPlace = 3;
  const bool is_cut_short = words.size() < kStatusPlace;
  if (!is_cut_short && (words.size() == kStatusPlace || words[kStatusPlace].text != "empty")) {
    words.insert(words.begin() + kStatusPlace, {"status"});
  }
  return words;
}

const StatementForm& FormOf(const std::vector<ScriptWord>& words) {
  const bool empty = words.back().text == "empty" || words[words.size() - 2].text == "empty";
  const std::string_view id = empty ? "fault_empty" : "fault";
  return *std::ranges::find(StatementForms(), id,
                            [](const StatementForm& form) { return std::string_view(form.id); });
}

}  // namespace

FaultPlan FaultOf(const Statement& statement) {
  CheckFunctions(statement);
  FaultPlan plan;
  if (statement.Text("FUNCTION") != "any") plan.function = statement.Text("FUNCTION");
  plan.nth = statement.Number("NTH");
  plan.from_then_on = statement.Has("from_then_on");
  if (statement.Has("empty")) {
    plan.kind = FaultKind::kEmptySuccess;
  } else {
    plan.status = *NumberOf(StatusWords(), statement.Text("STATUS"));
  }
  return plan;
}

FaultPlan FaultOption(const std::string& text) {
  if (text.empty()) return {};
  const std::vector<ScriptWord> words = StatementWords(text);
  Statement statement;
  statement.form = &FormOf(words);
  PatternMatch match = MatchPattern(CompilePattern(statement.form->pattern), words);
  if (!match.matched) Refuse(text, match.problem);
  statement.arguments = std::move(match.arguments);
  try {
    return FaultOf(statement);
  } catch (const ScriptError& error) {
    Refuse(text, error.what());
  }
}

}  // namespace wb
