// Splits the text of a workbench script into lines of words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "workbench/base/line_error.h"

namespace wb {

struct ScriptWord {
  std::string text;
  bool quoted = false;  // quoted words are never taken for words of the language
};

struct ScriptLine {
  int number = 0;
  std::vector<ScriptWord> words;  // never empty
  std::string text;               // as written, without indentation and comment
};

// Words are separated by blanks; "#" at the start of a word begins a comment. A quoted text knows
// \t \n \" \\ and may be repeated: "ab"*3 is "ababab". Lines without words are left out, and so
// are lines at fault, for which `errors` gets an entry each.
std::vector<ScriptLine> LexScript(std::string_view text, const std::string& file,
                                  std::vector<LineError>* errors);

}  // namespace wb
