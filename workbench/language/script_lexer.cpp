// Words of script lines.
#include "workbench/language/script_lexer.h"

#include <charconv>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"

namespace wb {
namespace {

// Longer texts than this are a slip of the pen.
constexpr size_t kMaxRepeatedBytes = 1 << 20;

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

class LineLexer {
 public:
  explicit LineLexer(std::string_view rest) : rest_(rest) {}

  // Empty: the line is well formed; otherwise what is wrong with it.
  std::string Read(ScriptLine* line) {
    const std::string_view whole = rest_;
    for (SkipBlanks(); !rest_.empty() && rest_.front() != '#'; SkipBlanks()) {
      std::string problem = rest_.front() == '"' ? Quoted(&line->words) : Plain(&line->words);
      if (!problem.empty()) return problem;
    }
    line->text = Trimmed(whole.substr(0, whole.size() - rest_.size()));
    return "";
  }

 private:
  void SkipBlanks() {
    while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
  }

  std::string Plain(std::vector<ScriptWord>* words) {
    size_t end = 0;
    while (end < rest_.size() && !IsBlank(rest_[end])) ++end;
    const std::string text(rest_.substr(0, end));
    rest_.remove_prefix(end);
    if (text.find('"') != std::string::npos) {
      return "a quote inside the word " + text + "; quote the whole text";
    }
    words->push_back({text, false});
    return "";
  }

  std::string Quoted(std::vector<ScriptWord>* words) {
    rest_.remove_prefix(1);
    std::string text;
    while (!rest_.empty() && rest_.front() != '"') {
      const std::string problem = Character(&text);
      if (!problem.empty()) return problem;
    }
    if (rest_.empty()) return "a quoted text is not closed";
    rest_.remove_prefix(1);
    std::string problem = Repeat(&text);
    if (problem.empty() && !rest_.empty() && !IsBlank(rest_.front())) {
      problem = "a blank is missing after the quoted text";
    }
    words->push_back({std::move(text), true});
    return problem;
  }

  std::string Character(std::string* text) {
    char c = rest_.front();
    rest_.remove_prefix(1);
    if (c == '\\') {
      constexpr std::string_view kCodes = "tnr\"\\";
      constexpr std::string_view kCharacters = "\t\n\r\"\\";
      const size_t code = rest_.empty() ? kCodes.npos : kCodes.find(rest_.front());
      if (code == kCodes.npos) {
        return "a backslash in a quoted text stands before t, n, r, \" or another backslash";
      }
      c = kCharacters[code];
      rest_.remove_prefix(1);
    }
    *text += c;
    return "";
  }

  std::string Repeat(std::string* text) {
    if (rest_.empty() || rest_.front() != '*') return "";
    rest_.remove_prefix(1);
    size_t times = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), times);
    if (error != std::errc() || times > kMaxRepeatedBytes ||
        text->size() * times > kMaxRepeatedBytes) {
      return "a whole number of repetitions must follow \"...\"*";
    }
    rest_.remove_prefix(static_cast<size_t>(end - rest_.data()));
    std::string repeated;
    for (size_t i = 0; i < times; ++i) repeated += *text;
    *text = std::move(repeated);
    return "";
  }

  std::string_view rest_;
};

}  // namespace

std::vector<ScriptLine> LexScript(std::string_view text, const std::string& file,
                                  std::vector<LineError>* errors) {
  std::vector<ScriptLine> lines;
  text = WithoutBom(text);
  for (int number = 1; !text.empty(); ++number) {
    const size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    ScriptLine read{number, {}, {}};
    std::string problem =
        IsUtf8(line) ? LineLexer(line).Read(&read) : "not UTF-8; save the script as UTF-8";
    if (!problem.empty()) {
      errors->emplace_back(file, number, problem);
    } else if (!read.words.empty()) {
      lines.push_back(std::move(read));
    }
  }
  return lines;
}

}  // namespace wb
