// Words of the exchange structure: keywords, references, numbers, strings, marks. Comments and
// the print control directives between words are blanks.
#include "workbench/step/file/step_lexer.h"

#include <algorithm>
#include <array>

namespace wb {
namespace {

enum CharClass : std::uint8_t { kOther, kBlank, kLetter, kDigit, kNumberMark };

constexpr std::array<CharClass, 256> MakeClasses() {
  std::array<CharClass, 256> classes{};
  for (int c = 1; c <= ' '; ++c) classes[c] = kBlank;
  for (int c = 'A'; c <= 'Z'; ++c) classes[c] = classes[c + 32] = kLetter;
  classes['_'] = kLetter;
  classes['!'] = kLetter;  // opens a user-defined keyword
  for (int c = '0'; c <= '9'; ++c) classes[c] = kDigit;
  for (unsigned char c : {'+', '-', '.'}) classes[c] = kNumberMark;
  return classes;
}
constexpr std::array<CharClass, 256> kClasses = MakeClasses();

CharClass ClassOf(char c) {
  return kClasses[static_cast<unsigned char>(c)];
}

std::size_t EndOfKeyword(std::string_view text, std::size_t at) {
  while (at < text.size() &&
         (ClassOf(text[at]) == kLetter || ClassOf(text[at]) == kDigit || text[at] == '-')) {
    ++at;
  }
  return at;
}

std::size_t EndOfNumber(std::string_view text, std::size_t at) {
  while (at < text.size() && (ClassOf(text[at]) == kDigit || ClassOf(text[at]) == kNumberMark ||
                              text[at] == 'E' || text[at] == 'e')) {
    ++at;
  }
  return at;
}

std::size_t EndOfDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && ClassOf(text[at]) == kDigit) ++at;
  return at;
}

// One mark, one token; everything longer is told apart in Next().
StepToken MarkOf(char c) {
  switch (c) {
    case '(':
      return StepToken::kOpen;
    case ')':
      return StepToken::kClose;
    case ',':
      return StepToken::kComma;
    case ';':
      return StepToken::kSemicolon;
    case '=':
      return StepToken::kEquals;
    case '$':
      return StepToken::kOmitted;
    case '*':
      return StepToken::kDerived;
    default:
      return StepToken::kEnd;
  }
}

std::string Compose(const std::string& file, std::size_t line, const std::string& reason,
                    std::string_view remedy) {
  std::string text = file;
  if (line > 0) text += ":" + std::to_string(line);
  text += ": " + reason;
  if (!remedy.empty()) text.append("; ").append(remedy);
  return text;
}

}  // namespace

StepError::StepError(std::string in_file, std::size_t at_line, std::string why,
                     std::string_view remedy)
    : std::runtime_error(Compose(in_file, at_line, why, remedy)),
      file(std::move(in_file)),
      line(at_line),
      reason(std::move(why)) {}

std::size_t StepSource::LineOf(std::size_t offset) const {
  std::size_t line = 1;
  const std::size_t end = std::min(offset, text.size());
  for (std::size_t i = 0; i < end; ++i) {
    // A lone carriage return ends a line too; a pair counts once.
    if (text[i] == '\n' || (text[i] == '\r' && (i + 1 >= text.size() || text[i + 1] != '\n'))) {
      ++line;
    }
  }
  return line;
}

void StepSource::Fail(std::size_t offset, std::string reason, std::string_view remedy) const {
  throw StepError(file, LineOf(offset), std::move(reason), remedy);
}

void StepLexer::SkipBlanks() {
  const std::string& text = source_->text;
  for (;;) {
    while (at_ < text.size() && ClassOf(text[at_]) == kBlank) ++at_;
    const std::string_view here = std::string_view(text).substr(at_, 3);
    if (here.starts_with("/*")) {
      const std::size_t end = text.find("*/", at_ + 2);
      if (end == std::string::npos) source_->Fail(at_, "this comment is never closed");
      at_ = end + 2;
    } else if (here == "\\N\\" || here == "\\F\\") {
      at_ += 3;
    } else {
      return;
    }
  }
}

StepWord StepLexer::Take(StepToken token, std::size_t begin, std::size_t end, std::size_t next) {
  const std::size_t offset = at_;
  at_ = next;
  return {token, std::string_view(source_->text).substr(begin, end - begin), offset};
}

StepWord StepLexer::TakeUntil(StepToken token, char closing) {
  const std::size_t end = source_->text.find(closing, at_ + 1);
  if (end == std::string::npos || end - at_ > 4096) {
    source_->Fail(at_, std::string("a closing '") + closing + "' is missing");
  }
  return Take(token, at_ + 1, end, end + 1);
}

StepWord StepLexer::TakeQuoted(StepToken token, char quote) {
  const std::string& text = source_->text;
  std::size_t end = text.find(quote, at_ + 1);
  while (end != std::string::npos && end + 1 < text.size() && text[end + 1] == quote) {
    end = text.find(quote, end + 2);
  }
  if (end == std::string::npos) source_->Fail(at_, "the text that begins here is never closed");
  return Take(token, at_ + 1, end, end + 1);
}

StepWord StepLexer::Next() {
  SkipBlanks();
  const std::string_view text = source_->text;
  if (at_ >= text.size()) return {StepToken::kEnd, {}, text.size()};
  const char c = text[at_];
  if (const StepToken mark = MarkOf(c); mark != StepToken::kEnd) {
    return Take(mark, at_, at_ + 1, at_ + 1);
  }
  if (c == '#') {
    const std::size_t end = EndOfDigits(text, at_ + 1);
    if (end == at_ + 1) source_->Fail(at_, "a number must follow '#'");
    return Take(StepToken::kReference, at_ + 1, end, end);
  }
  if (c == '\'') return TakeQuoted(StepToken::kString, '\'');
  if (c == '"') return TakeQuoted(StepToken::kBinary, '"');
  if (c == '<') return TakeUntil(StepToken::kUri, '>');
  const CharClass kind = ClassOf(c);
  if (c == '.' && at_ + 1 < text.size() && ClassOf(text[at_ + 1]) == kLetter) {
    return TakeUntil(StepToken::kEnumeration, '.');
  }
  if (kind == kLetter) {
    const std::size_t end = EndOfKeyword(text, at_);
    return Take(StepToken::kKeyword, at_, end, end);
  }
  if (kind == kDigit || kind == kNumberMark) {
    const std::size_t end = EndOfNumber(text, at_);
    return Take(StepToken::kNumber, at_, end, end);
  }
  source_->Fail(at_, "unexpected " + ShowStepWord({StepToken::kKeyword, text.substr(at_, 1), at_}));
}

bool StepLexer::SkipBehind(std::string_view text) {
  const std::size_t found = source_->text.find(text, at_);
  if (found == std::string::npos) return false;
  at_ = found + text.size();
  return true;
}

std::string ShowStepWord(const StepWord& word) {
  if (word.token == StepToken::kEnd) return "the end of the file";
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string shown;
  for (const char c : word.text.substr(0, 24)) {
    if (c >= ' ' && c <= '~') {
      shown += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      shown += std::string("\\x") + kHex[byte >> 4] + kHex[byte & 15];
    }
  }
  if (word.text.size() > 24) shown += "...";
  return std::string(word.token == StepToken::kReference ? "'#" : "'") + shown + "'";
}

}  // namespace wb
