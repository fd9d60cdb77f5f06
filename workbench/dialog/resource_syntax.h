// The bracket grammar that dialog resource files are written in: nested lists of words and quoted
// strings, `!` comments. Knows nothing of dialogs; every item remembers its line for error texts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "workbench/base/line_error.h"

namespace wb {

// A resource file that cannot be used.
struct ResourceError : LineError {
  using LineError::LineError;
};

struct SyntaxNode {
  enum class Type { kList, kString, kWord };

  bool IsList() const { return type == Type::kList; }
  bool IsString() const { return type == Type::kString; }
  bool IsWord() const { return type == Type::kWord; }
  // True for a list that opens with the word `head`.
  bool IsForm(std::string_view head) const;

  Type type = Type::kWord;
  int line = 0;
  std::string text;                  // of a word, or of a string with its escapes resolved
  std::vector<SyntaxNode> children;  // of a list
};

// Parses `text`, which must hold exactly one list besides comments. Strings know the escapes
// \" \\ and \n and end on the line they begin on. Throws ResourceError naming `file`.
SyntaxNode ParseSyntax(std::string_view text, const std::string& file);

}  // namespace wb
