// The statements as one language: each is carried out by somebody, and the manual shows them all,
// so that none is hidden behind one of another family.
#include "workbench/statements/statement_families.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "tests/source_folder.h"
#include "workbench/language/script_parser.h"
#include "workbench/script/script_user.h"

namespace wb {
namespace {

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
