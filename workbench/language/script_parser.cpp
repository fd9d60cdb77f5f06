// Finds the form of each line and gathers blocks.
#include "workbench/language/script_parser.h"

#include <algorithm>
#include <cstring>

#include "workbench/base/text.h"
#include "workbench/language/script_words.h"

namespace wb {
namespace {

// A form, ready to be compared with lines.
struct ReadableForm {
  explicit ReadableForm(const StatementForm& row)
      : form(&row), pattern(CompilePattern(row.pattern)) {}

  const StatementForm* form;
  Pattern pattern;
};
using ReadableForms = std::vector<ReadableForm>;

const char* PlaceName(unsigned places) {
  if ((places & kTopPlace) != 0) return "at the top level of a script";
  return (places & kAnswerPlace) != 0 ? "among the answers of \"run ... with\""
                                      : "inside a \"dialog\" block";
}

// More patterns than these would hide what is wrong.
constexpr size_t kMostPatternsShown = 3;

std::string Suggestion(const std::string& word, const std::vector<std::string>& wanted) {
  const std::string nearest = NearestWord(word, wanted);
  return nearest.empty() ? "" : "; did you mean \"" + nearest + "\"?";
}

// What the forms of one place make of a line.
class FormSearch {
 public:
  FormSearch(const ReadableForms& forms, const ScriptLine& line, unsigned place)
      : forms_(forms), line_(line) {
    for (size_t i = 0; i < forms.size() && !found_; ++i) {
      if ((forms[i].form->places & place) != 0) Try(forms[i]);
    }
  }

  const StatementForm* found() const { return found_; }
  ScriptArguments& arguments() { return best_.arguments; }

  std::string Problem() const {
    const std::string& word = line_.words[std::min(best_.reached, line_.words.size() - 1)].text;
    if (const StatementForm* const elsewhere = FormElsewhere()) {
      return "\"" + std::string(elsewhere->pattern) + "\" stands " + PlaceName(elsewhere->places);
    }
    if (best_.reached == 0) return "unknown statement \"" + word + "\"" + Suggestion(word, wanted_);
    std::string text =
        "\"" + word + "\" does not fit after \"" + line_.words[best_.reached - 1].text + "\"";
    if (same_problem_) text = best_.problem;
    if (nearest_.size() <= kMostPatternsShown) text += "; it reads: " + Join(" or: ", nearest_);
    return text + Suggestion(word, wanted_);
  }

 private:
  void Try(const ReadableForm& tried) {
    PatternMatch match = MatchPattern(tried.pattern, line_.words);
    if (match.matched) {
      found_ = tried.form;
      best_ = std::move(match);
      return;
    }
    if (match.reached < best_.reached) return;
    if (match.reached > best_.reached) {
      nearest_.clear();
      wanted_.clear();
    }
    same_problem_ = nearest_.empty() || (same_problem_ && match.problem == best_.problem);
    nearest_.push_back(tried.form->pattern);
    wanted_.insert(wanted_.end(), match.wanted.begin(), match.wanted.end());
    best_ = std::move(match);
  }

  // A form of another place that the line would be.
  const StatementForm* FormElsewhere() const {
    const auto found = std::find_if(forms_.begin(), forms_.end(), [&](const ReadableForm& other) {
      return MatchPattern(other.pattern, line_.words).matched;
    });
    return found == forms_.end() ? nullptr : found->form;
  }

  const ReadableForms& forms_;
  const ScriptLine& line_;
  const StatementForm* found_ = nullptr;
  PatternMatch best_;
  std::vector<std::string> nearest_;  // patterns of the forms that went as far as the best one
  bool same_problem_ = true;          // they all say the same
  std::vector<std::string> wanted_;
};

class Parser {
 public:
  Parser(StatementForms forms, const std::string& file, const std::vector<ScriptLine>& lines,
         std::vector<LineError>* errors)
      : forms_(forms.begin(), forms.end()), file_(file), lines_(lines), errors_(*errors) {}

  std::vector<Statement> Top() {
    std::vector<Statement> statements;
    while (at_ < lines_.size()) {
      Statements(kTopPlace, &statements);
      if (at_ == lines_.size()) break;
      Error(lines_[at_++].number, "\"end\" without a block that it closes");
    }
    return statements;
  }

 private:
  void Error(int line, const std::string& why) { errors_.emplace_back(file_, line, why); }

  static bool IsEnd(const ScriptLine& line) {
    return line.words.size() == 1 && !line.words[0].quoted && line.words[0].text == "end";
  }

  // Up to an `end`, which stays, or to the last line.
  void Statements(unsigned place, std::vector<Statement>* statements) {
    while (at_ < lines_.size() && !IsEnd(lines_[at_])) One(place, statements);
  }

  void One(unsigned place, std::vector<Statement>* statements) {
    const ScriptLine& line = lines_[at_++];
    FormSearch search(forms_, line, place);
    if (search.found() == nullptr) {
      Error(line.number, search.Problem());
      SkipBlockOf(line);
      return;
    }
    Statement statement{
        search.found(), file_, line.number, line.text, std::move(search.arguments()), {}};
    if (statement.form->block != 0) Block(statement.form->block, line.number, &statement.block);
    statements->push_back(std::move(statement));
  }

  void Block(unsigned place, int opened, std::vector<Statement>* statements) {
    Statements(place, statements);
    if (at_ == lines_.size()) {
      Error(opened, "this block is not closed by \"end\"");
    } else {
      ++at_;
    }
  }

  // A faulty line that would have opened a block takes its block along, so that one mistake is one
  // error.
  void SkipBlockOf(const ScriptLine& line) {
    const auto opened = std::find_if(forms_.begin(), forms_.end(), [&](const ReadableForm& form) {
      return form.form->block != 0 && SeemsMeant(form.pattern, line);
    });
    if (opened == forms_.end()) return;
    std::vector<Statement> dropped;
    Block(opened->form->block, line.number, &dropped);
  }

  // The word that ends such a statement tells it, or the first one where it ends otherwise.
  static bool SeemsMeant(const Pattern& pattern, const ScriptLine& line) {
    const bool by_end = pattern.back().kind == PatternPart::Kind::kWords;
    const ScriptWord& word = by_end ? line.words.back() : line.words.front();
    return word.text == (by_end ? pattern.back() : pattern.front()).words.front();
  }

  const ReadableForms forms_;
  const std::string& file_;
  const std::vector<ScriptLine>& lines_;
  std::vector<LineError>& errors_;
  size_t at_ = 0;
};

}  // namespace

bool Statement::Is(std::string_view word) const {
  const std::string_view pattern = form->pattern;
  return pattern.substr(0, pattern.find(' ')) == word;
}

const std::string& Statement::Text(std::string_view name) const {
  static const std::string none;
  const std::vector<std::string>& texts = Texts(name);
  return texts.empty() ? none : texts.front();
}

const std::vector<std::string>& Statement::Texts(std::string_view name) const {
  static const std::vector<std::string> none;
  const auto found = arguments.find(name);
  return found == arguments.end() ? none : found->second;
}

int Statement::Number(std::string_view name) const {
  return WholeNumber(Text(name)).value_or(0);
}

double Statement::Decimal(std::string_view name) const {
  return DecimalNumber(Text(name)).value_or(0);
}

ParsedScript ParseScript(std::string_view text, const std::string& file, StatementForms forms) {
  ParsedScript script;
  const std::vector<ScriptLine> lines = LexScript(text, file, &script.errors);
  script.statements = Parser(forms, file, lines, &script.errors).Top();
  std::stable_sort(script.errors.begin(), script.errors.end(),
                   [](const LineError& a, const LineError& b) { return a.line < b.line; });
  return script;
}

}  // namespace wb
