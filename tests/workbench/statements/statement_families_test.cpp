// The statements as one language: no family takes another's lines, each is carried out by somebody,
// and the manual shows them all.
#include "workbench/statements/statement_families.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "tests/source_folder.h"
#include "workbench/language/script_parser.h"
#include "workbench/script/script_user.h"

namespace wb {
namespace {

bool MayBeLeftOut(const PatternPart& part) {
  return part.kind == PatternPart::Kind::kOptional || part.kind == PatternPart::Kind::kAnyOrder;
}

bool DifferInWords(const PatternPart& a, const PatternPart& b) {
  return a.kind == PatternPart::Kind::kWords && b.kind == PatternPart::Kind::kWords &&
         std::find_first_of(a.words.begin(), a.words.end(), b.words.begin(), b.words.end()) ==
             a.words.end();
}

// Whether a word of the language keeps every line from fitting both. Looks no further than the
// first part that a line may leave out or repeat.
bool AreTold(const Pattern& a, const Pattern& b) {
  for (size_t i = 0; i < a.size() || i < b.size(); ++i) {
    if (i == a.size()) return !MayBeLeftOut(b[i]);
    if (i == b.size()) return !MayBeLeftOut(a[i]);
    if (DifferInWords(a[i], b[i])) return true;
    for (const PatternPart* part : {&a[i], &b[i]}) {
      if (MayBeLeftOut(*part) || part->kind == PatternPart::Kind::kRest) return false;
    }
  }
  return false;
}

bool AreTold(const char* a, const char* b) {
  return AreTold(CompilePattern(a), CompilePattern(b));
}

void ExpectTold(StatementForms family, StatementForms other_family) {
  for (const StatementForm& form : family) {
    for (const StatementForm& other : other_family) {
      EXPECT_TRUE(AreTold(form.pattern, other.pattern)) << form.pattern << "\n" << other.pattern;
    }
  }
}

TEST(StatementFamilies, NoLineFitsFormsOfTwoFamilies) {
  EXPECT_FALSE(AreTold("folder temp", "folder PATH"));
  EXPECT_FALSE(AreTold("save [now] all", "save it"));
  const std::vector<StatementForms> families = StatementFamilies();
  for (size_t i = 0; i < families.size(); ++i) {
    for (size_t k = 0; k < i; ++k) ExpectTold(families[i], families[k]);
  }
}

TEST(StatementFamilies, AllButAnswersAreCarriedOutByAFunction) {
  for (const StatementForms family : StatementFamilies()) {
    if (family.data() == AnswerStatements().data()) continue;
    for (const StatementForm& form : family) EXPECT_NE(form.action, kWhenAsked) << form.pattern;
  }
}

// The examples of the manual between lines of ```qms and ```.
std::vector<std::string> Examples() {
  std::vector<std::string> examples;
  std::ifstream manual(SourceFolder() / "docs" / "workbench.md", std::ios::binary);
  bool inside = false;
  for (std::string line; std::getline(manual, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line == "```qms") {
      examples.emplace_back();
      inside = true;
    } else if (line == "```") {
      inside = false;
    } else if (inside) {
      examples.back() += line + "\n";
    }
  }
  return examples;
}

void CollectForms(const std::vector<Statement>& statements, std::set<const StatementForm*>* forms) {
  for (const Statement& statement : statements) {
    forms->insert(statement.form);
    CollectForms(statement.block, forms);
  }
}

TEST(ScriptManual, ShowsEveryStatementInAnExampleThatReads) {
  std::set<const StatementForm*> shown;
  for (const std::string& example : Examples()) {
    const ParsedScript script = ParseScript(example, "workbench.md", AllStatements());
    for (const LineError& error : script.errors) ADD_FAILURE() << error.what() << "\n" << example;
    CollectForms(script.statements, &shown);
  }
  for (const StatementForm& form : AllStatements()) {
    EXPECT_TRUE(shown.contains(&form)) << "no example of: " << form.pattern;
  }
}

}  // namespace
}  // namespace wb
