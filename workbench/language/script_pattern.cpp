// Compiles patterns and walks a line's words along them.
#include "workbench/language/script_pattern.h"

#include <algorithm>
#include <cctype>

#include "workbench/base/text.h"
#include "workbench/language/script_words.h"

namespace wb {
namespace {

bool IsWhole(std::string_view word) {
  return WholeNumber(word).has_value();
}
bool IsCount(std::string_view word) {
  return WholeNumber(word).value_or(-1) >= 0;
}
bool IsDecimal(std::string_view word) {
  return DecimalNumber(word).has_value();
}
bool IsStatus(std::string_view word) {
  return NumberOf(StatusWords(), word).has_value();
}
bool IsMode(std::string_view word) {
  return NumberOf(ModeWords(), word).has_value();
}
bool IsItem(std::string_view word) {
  return NumberOf(ItemWords(), word).has_value();
}
bool IsTimes(std::string_view word) {
  return WholeNumber(word).value_or(0) >= 1;
}

// Types of arguments by the name of their place; any other name takes any word.
struct ArgumentType {
  const char* name;
  bool (*fits)(std::string_view word);
  const char* meaning;
};
constexpr ArgumentType kArgumentTypes[] = {
    {"N", IsCount, "a count"},
    {"NTH", IsTimes, "a count from 1"},
    {"SECOND", IsTimes, "a count from 1"},
    {"TIMES", IsTimes, "a count from 1"},
    {"ID", IsWhole, "a whole number"},
    {"FLAGS", IsWhole, "a whole number"},
    {"FEATURE_TYPE", IsCount, "a feature type number"},
    {"INTEGER", IsWhole, "a whole number"},
    {"NUMBER", IsDecimal, "a number"},
    {"X", IsDecimal, "a number"},
    {"Y", IsDecimal, "a number"},
    {"Z", IsDecimal, "a number"},
    {"X2", IsDecimal, "a number"},
    {"Y2", IsDecimal, "a number"},
    {"Z2", IsDecimal, "a number"},
    {"STATUS", IsStatus, "a status such as general_error"},
    {"MODE", IsMode, "a mode such as assembly"},
    {"ITEM", IsItem, "an item type such as part or surface"},
};

const ArgumentType* TypeOf(std::string_view name) {
  const auto found = std::find_if(std::begin(kArgumentTypes), std::end(kArgumentTypes),
                                  [&](const ArgumentType& type) { return type.name == name; });
  return found == std::end(kArgumentTypes) ? nullptr : found;
}

class Compiler {
 public:
  explicit Compiler(std::string_view text) : rest_(text) {}

  // Up to the closing bracket, or to the end.
  Pattern Parts() {
    Pattern parts;
    for (std::string_view token = Token(); !token.empty() && token != "]" && token != "}";
         token = Token()) {
      parts.push_back(Part(token));
    }
    return parts;
  }

 private:
  std::string_view Token() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size()));
    if (rest_.empty()) return {};
    const size_t end = std::string_view("[]{}").find(rest_.front()) != std::string_view::npos
                           ? 1
                           : std::min(rest_.find_first_of(" []{}"), rest_.size());
    const std::string_view token = rest_.substr(0, end);
    rest_.remove_prefix(end);
    return token;
  }

  PatternPart Part(std::string_view token) {
    PatternPart part;
    if (token == "[" || token == "{") {
      part.kind = token == "[" ? PatternPart::Kind::kOptional : PatternPart::Kind::kAnyOrder;
      part.parts = Parts();
      return part;
    }
    if (const size_t colon = token.find(':'); colon != token.npos) {
      part.name = token.substr(0, colon);
      for (size_t at = colon + 1; at <= token.size();) {
        const size_t bar = std::min(token.find('|', at), token.size());
        part.words.emplace_back(token.substr(at, bar - at));
        at = bar + 1;
      }
      return part;
    }
    if (std::isupper(static_cast<unsigned char>(token.front())) == 0) {
      part.words.emplace_back(token);
      return part;
    }
    const bool rest = token.ends_with("...");
    part.kind = rest ? PatternPart::Kind::kRest : PatternPart::Kind::kArgument;
    part.name = rest ? token.substr(0, token.size() - 3) : token;
    return part;
  }

  std::string_view rest_;
};

class Matcher {
 public:
  explicit Matcher(std::span<const ScriptWord> words) : words_(words) {}

  PatternMatch Run(const Pattern& pattern) {
    if (All(pattern)) {
      if (AtEnd()) {
        match_.matched = true;
      } else {
        Problem("\"" + words_[at_].text + "\" is one word too many");
      }
    }
    match_.reached = at_;
    return std::move(match_);
  }

 private:
  bool AtEnd() const { return at_ == words_.size(); }

  bool Problem(const std::string& text) {
    match_.problem = text;
    return false;
  }

  bool All(const Pattern& parts) {
    return std::all_of(parts.begin(), parts.end(),
                       [&](const PatternPart& part) { return One(part); });
  }

  bool One(const PatternPart& part) {
    switch (part.kind) {
      case PatternPart::Kind::kWords:
        return Words(part);
      case PatternPart::Kind::kArgument:
        return Argument(part);
      case PatternPart::Kind::kRest:
        if (!Argument(part)) return false;
        while (!AtEnd()) {
          if (!Argument(part)) return false;
        }
        return true;
      case PatternPart::Kind::kOptional:
        return !Starts(part.parts) || All(part.parts);
      case PatternPart::Kind::kAnyOrder:
        return AnyOrder(part.parts);
    }
    return false;
  }

  bool AnyOrder(const Pattern& options) {
    std::vector<bool> used(options.size());
    for (size_t i = 0; i < options.size(); ++i) {
      if (used[i] || !Starts(options[i].parts)) continue;
      if (!All(options[i].parts)) return false;
      used[i] = true;
      i = static_cast<size_t>(-1);  // the next word may belong to an earlier option
    }
    return true;
  }

  // Whether the next word begins these parts. What would have begun them is remembered.
  bool Starts(const Pattern& parts) {
    if (AtEnd()) return false;
    const PatternPart& first = parts.front();
    if (first.kind != PatternPart::Kind::kWords) return true;
    if (Fits(first)) return true;
    Want(first);
    return false;
  }

  bool Fits(const PatternPart& part) const {
    const ScriptWord& word = words_[at_];
    return !word.quoted &&
           std::find(part.words.begin(), part.words.end(), word.text) != part.words.end();
  }

  void Want(const PatternPart& part) {
    if (wanted_at_ != at_) match_.wanted.clear();
    wanted_at_ = at_;
    match_.wanted.insert(match_.wanted.end(), part.words.begin(), part.words.end());
  }

  bool Words(const PatternPart& part) {
    if (AtEnd() || !Fits(part)) {
      Want(part);
      return Problem(AtEnd() ? "\"" + Join(" or ", part.words) + "\" is missing at its end"
                             : "\"" + words_[at_].text + "\" stands where \"" +
                                   Join(" or ", part.words) + "\" is needed");
    }
    match_.arguments[part.name.empty() ? part.words.front() : part.name] = {words_[at_].text};
    ++at_;
    return true;
  }

  bool Argument(const PatternPart& part) {
    if (AtEnd()) return Problem(part.name + " is missing at its end");
    const std::string& word = words_[at_].text;
    const ArgumentType* const type = TypeOf(part.name);
    if (type != nullptr && !type->fits(word)) {
      return Problem("\"" + word + "\" is not " + type->meaning);
    }
    match_.arguments[part.name].push_back(word);
    ++at_;
    return true;
  }

  std::span<const ScriptWord> words_;
  size_t at_ = 0;
  size_t wanted_at_ = 0;
  PatternMatch match_;
};

}  // namespace

Pattern CompilePattern(std::string_view text) {
  return Compiler(text).Parts();
}

PatternMatch MatchPattern(const Pattern& pattern, std::span<const ScriptWord> words) {
  return Matcher(words).Run(pattern);
}

}  // namespace wb
