// Turns the text of a script into statements. All that is wrong with a script is found here, before
// anything of it runs.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "workbench/base/line_error.h"
#include "workbench/language/script_pattern.h"
#include "workbench/language/statement_form.h"

namespace wb {

struct Statement {
  const StatementForm* form = nullptr;
  std::string file;
  int line = 0;
  std::string text;  // its line as written
  ScriptArguments arguments;
  std::vector<Statement> block;

  // Whether its pattern begins with this word.
  bool Is(std::string_view word) const;
  bool Has(std::string_view name) const { return arguments.contains(name); }
  // The argument's (first) word; "" when the line left it out.
  const std::string& Text(std::string_view name) const;
  const std::vector<std::string>& Texts(std::string_view name) const;
  int Number(std::string_view name) const;
  double Decimal(std::string_view name) const;
  std::string Place() const { return file + ":" + std::to_string(line); }
};

struct ParsedScript {
  std::vector<Statement> statements;  // complete only when there are no errors
  std::vector<LineError> errors;      // in line order
};

// `file` is what errors and statements name; `forms` outlive the statements.
ParsedScript ParseScript(std::string_view text, const std::string& file, StatementForms forms);

}  // namespace wb
