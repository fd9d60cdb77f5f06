// Reads message files and fills in the arguments of their texts.
#include "workbench/base/message_file.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"

namespace wb {
namespace {

constexpr std::size_t kLongestText = 80;  // the host's message line, in wide characters
constexpr std::size_t kLinesPerRecord = 4;

struct ClassCode {
  const char* code;
  MessageClass message_class;
};

constexpr ClassCode kClassCodes[] = {
    {"%CP", MessageClass::kPrompt},   {"%CI", MessageClass::kInfo},
    {"%CW", MessageClass::kWarning},  {"%CE", MessageClass::kError},
    {"%CC", MessageClass::kCritical},
};

MessageClass ClassOf(std::string_view text) {
  for (const ClassCode& row : kClassCodes) {
    if (text.substr(0, 3) == row.code) return row.message_class;
  }
  return MessageClass::kNone;
}

// A stretch of a text: either plain, or one argument code.
struct TextPiece {
  std::string_view plain;
  std::optional<MessageArgCode> code;
};

MessageArgType ArgType(char letter) {
  if (std::string_view("swdf").find(letter) == std::string_view::npos) {
    throw std::invalid_argument(std::string("argument type '") + letter +
                                "' is none of s, w, d and f");
  }
  return static_cast<MessageArgType>(letter);
}

std::vector<TextPiece> Pieces(std::string_view text) {
  std::vector<TextPiece> pieces;
  std::size_t plain_from = 0;
  for (std::size_t at = 0; at + 1 < text.size(); ++at) {
    const char digit = text[at + 1];
    if (text[at] != '%' || digit < '0' || digit > '9') continue;
    if (at + 2 == text.size()) throw std::invalid_argument("an argument code lacks its type");
    pieces.push_back({text.substr(plain_from, at - plain_from), std::nullopt});
    pieces.push_back({{}, MessageArgCode{digit - '0', ArgType(text[at + 2])}});
    plain_from = at + 3;
    at += 2;
  }
  pieces.push_back({text.substr(plain_from), std::nullopt});
  return pieces;
}

bool Fits(MessageArgType type, const MessageArg& arg) {
  if (type == MessageArgType::kInteger) return std::holds_alternative<std::int64_t>(arg);
  if (type == MessageArgType::kDouble) return std::holds_alternative<double>(arg);
  return std::holds_alternative<std::string>(arg);
}

std::string ArgText(const MessageArg& arg) {
  if (const auto* text = std::get_if<std::string>(&arg)) return *text;
  if (const auto* integer = std::get_if<std::int64_t>(&arg)) return std::to_string(*integer);
  return std::to_string(std::get<double>(arg));
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    lines.push_back(line);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return lines;
}

// Reads one record from its lines; `first_line` is the number of the key's line.
class RecordReader {
 public:
  RecordReader(const std::string& file, int first_line) : file_(file), line_(first_line) {}

  MessageRecord Read(const std::vector<std::string_view>& lines) const {
    CheckShape(lines);
    MessageRecord record;
    record.line = line_;
    record.message_class = ClassOf(lines[0]);
    record.key = lines[0].substr(record.message_class == MessageClass::kNone ? 0 : 3);
    if (record.key.empty()) Fail(0, "the key is empty");
    record.english = CheckedText(lines[1], 1);
    if (record.english.empty()) Fail(1, "the text of \"" + record.key + "\" is empty");
    record.translation = CheckedText(lines[2], 2);
    record.arguments = Codes(lines[1], 1);
    CheckArguments(record);
    return record;
  }

 private:
  [[noreturn]] void Fail(int offset, const std::string& reason) const {
    throw MessageFileError(file_, line_ + offset, reason);
  }

  void CheckShape(const std::vector<std::string_view>& lines) const {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (!IsUtf8(lines[i])) Fail(static_cast<int>(i), "the line is not UTF-8");
    }
    if (lines[0].empty()) Fail(0, "expected a key, found a blank line");
    if (lines.size() < kLinesPerRecord - 1) {
      Fail(static_cast<int>(lines.size()) - 1,
           "the record ends early; it needs key, text, translation and a blank line");
    }
    if (lines.size() == kLinesPerRecord && !lines[3].empty()) {
      Fail(3, "expected the blank line that ends the record of \"" + std::string(lines[0]) + "\"");
    }
  }

  std::string CheckedText(std::string_view text, int offset) const {
    if (WideLength(text) > kLongestText) {
      Fail(offset, "the text has " + std::to_string(WideLength(text)) +
                       " characters; a message line holds 80");
    }
    if (ClassOf(text) != MessageClass::kNone) Fail(offset, "a class code belongs before the key");
    return std::string(text);
  }

  std::vector<MessageArgCode> Codes(std::string_view text, int offset) const {
    try {
      return MessageArgCodes(text);
    } catch (const std::invalid_argument& error) {
      Fail(offset, error.what());
    }
  }

  // The host fetches a call's arguments one after another, each by its code, so none may be left
  // out and a translation may use only what the English text names.
  void CheckArguments(const MessageRecord& record) const {
    const auto& known = record.arguments;
    for (std::size_t i = 0; i < known.size(); ++i) {
      if (known[i].index != static_cast<int>(i)) {
        Fail(1, "argument %" + std::to_string(i) + " is left out");
      }
    }
    for (const MessageArgCode& code : Codes(record.translation, 2)) {
      if (std::find(known.begin(), known.end(), code) == known.end()) {
        Fail(2, "the translation uses %" + std::to_string(code.index) +
                    static_cast<char>(code.type) + ", which the text does not");
      }
    }
  }

  const std::string& file_;
  int line_;
};

}  // namespace

MessageFile MessageFile::Parse(std::string_view text, const std::string& file) {
  const std::vector<std::string_view> lines = SplitLines(WithoutBom(text));
  MessageFile messages;
  for (std::size_t first = 0; first < lines.size(); first += kLinesPerRecord) {
    const std::size_t last = std::min(first + kLinesPerRecord, lines.size());
    const std::vector<std::string_view> own(lines.begin() + static_cast<std::ptrdiff_t>(first),
                                            lines.begin() + static_cast<std::ptrdiff_t>(last));
    const int line = static_cast<int>(first) + 1;
    MessageRecord record = RecordReader(file, line).Read(own);
    const auto [at, added] = messages.index_.emplace(record.key, messages.records_.size());
    if (!added) {
      throw MessageFileError(file, line,
                             "key \"" + record.key + "\" is given twice, first on line " +
                                 std::to_string(messages.records_[at->second].line));
    }
    messages.records_.push_back(std::move(record));
  }
  return messages;
}

MessageFile MessageFile::Load(const std::filesystem::path& path) {
  const std::optional<std::string> text = ReadFileBytes(path);
  if (!text) throw MessageFileError(PathToUtf8(path), 0, "the message file cannot be read");
  return Parse(*text, PathToUtf8(path));
}

const MessageRecord* MessageFile::Find(std::string_view key) const {
  const auto found = index_.find(std::string(key));
  return found == index_.end() ? nullptr : &records_[found->second];
}

std::vector<MessageArgCode> MessageArgCodes(std::string_view text) {
  std::vector<MessageArgCode> codes;
  for (const TextPiece& piece : Pieces(text)) {
    if (!piece.code) continue;
    const auto same = std::find_if(codes.begin(), codes.end(), [&](const MessageArgCode& code) {
      return code.index == piece.code->index;
    });
    if (same == codes.end()) {
      codes.push_back(*piece.code);
    } else if (same->type != piece.code->type) {
      throw std::invalid_argument("argument %" + std::to_string(same->index) +
                                  " is used with two types");
    }
  }
  std::sort(codes.begin(), codes.end(),
            [](const MessageArgCode& a, const MessageArgCode& b) { return a.index < b.index; });
  return codes;
}

std::string FormatMessageText(std::string_view text, const std::vector<MessageArg>& args) {
  std::string formatted;
  for (const TextPiece& piece : Pieces(text)) {
    formatted += piece.plain;
    if (!piece.code) continue;
    const auto index = static_cast<std::size_t>(piece.code->index);
    if (index >= args.size() || !Fits(piece.code->type, args[index])) {
      throw std::invalid_argument("argument %" + std::to_string(index) +
                                  " is missing or of another type");
    }
    formatted += ArgText(args[index]);
  }
  return formatted;
}

PromptText SplitPrompt(std::string_view formatted) {
  constexpr std::string_view kMark = "|||";
  const std::size_t mark = formatted.find(kMark);
  if (mark == std::string_view::npos) return {std::string(formatted), {}};
  return {std::string(formatted.substr(0, mark)),
          std::string(formatted.substr(mark + kMark.size()))};
}

}  // namespace wb
