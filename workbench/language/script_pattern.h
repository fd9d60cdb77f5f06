// How a statement reads, written as a pattern, and the comparison of a line's words with it.
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/language/script_lexer.h"

namespace wb {

// Words of a statement by the name of their place in the pattern. Words of the language that a
// line may leave out stand under themselves when they are there.
using ScriptArguments = std::map<std::string, std::vector<std::string>, std::less<>>;

// A pattern is written in words: `word` stands for itself, `NAME` for any one word of the type that
// the name implies, `NAME...` for one or more up to the end of the line, `NAME:a|b` for one of the
// words listed, `[ ]` around what may be left out, `{ }` around several `[ ]` in any order.
struct PatternPart {
  enum class Kind { kWords, kArgument, kRest, kOptional, kAnyOrder };
  Kind kind = Kind::kWords;
  std::string name;                // of an argument or of a choice of words
  std::vector<std::string> words;  // one, or a choice
  std::vector<PatternPart> parts;  // of what may be left out
};
using Pattern = std::vector<PatternPart>;

Pattern CompilePattern(std::string_view text);

struct PatternMatch {
  bool matched = false;
  size_t reached = 0;               // words that fit before the one that did not
  std::string problem;              // why the next one did not
  std::vector<std::string> wanted;  // words of the language that would have fitted there
  ScriptArguments arguments;
};
PatternMatch MatchPattern(const Pattern& pattern, std::span<const ScriptWord> words);

}  // namespace wb
