// The host's message files: four lines a record, a key that the plug-in asks for, the English
// text, a translation that may be empty, and a blank line. Texts carry argument codes such as %0w.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "workbench/base/line_error.h"

namespace wb {

struct MessageFileError : LineError {
  using LineError::LineError;
};

// What the message area shows beside a text; from a code such as %CW before the key.
enum class MessageClass { kNone, kPrompt, kInfo, kWarning, kError, kCritical };

enum class MessageArgType : char { kString = 's', kWide = 'w', kInteger = 'd', kDouble = 'f' };

// One argument that a text takes: its place in the call, counted from 0, and its type there.
struct MessageArgCode {
  int index = 0;
  MessageArgType type = MessageArgType::kString;

  bool operator==(const MessageArgCode&) const = default;
};

// A decoded argument: UTF-8 for %s and %w, a number for %d and %f.
using MessageArg = std::variant<std::string, std::int64_t, double>;

struct MessageRecord {
  // The translation, or the English text where there is none.
  const std::string& Text() const { return translation.empty() ? english : translation; }

  std::string key;  // exactly as in the file, blanks included, without its class code
  MessageClass message_class = MessageClass::kNone;
  std::string english;
  std::string translation;
  int line = 0;  // of the key
  // What the call must pass, in order and without gaps: 0, 1, 2 ...
  std::vector<MessageArgCode> arguments;
};

class MessageFile {
 public:
  // Both throw MessageFileError: for text that is not UTF-8, a record that does not have its four
  // lines, a key given twice, a text of more than 80 wide characters, and argument codes that the
  // call could not serve. Load reports an unreadable file with line 0. The last record may lack its
  // blank line.
  static MessageFile Load(const std::filesystem::path& path);
  static MessageFile Parse(std::string_view text, const std::string& file);

  // The record whose key is exactly `key`, null when there is none.
  const MessageRecord* Find(std::string_view key) const;
  const std::vector<MessageRecord>& Records() const { return records_; }

 private:
  std::vector<MessageRecord> records_;
  std::unordered_map<std::string, std::size_t> index_;
};

// The codes in `text`, sorted by index, each once. Throws std::invalid_argument for an unknown type
// letter and for one index with two types. A % before anything but a digit is plain text.
std::vector<MessageArgCode> MessageArgCodes(std::string_view text);

// `text` with its codes replaced by `args`, which are in call order. Throws std::invalid_argument
// when an argument is missing or is not of the type its code names.
std::string FormatMessageText(std::string_view text, const std::vector<MessageArg>& args);

// A prompt may carry the reply it offers after "|||".
struct PromptText {
  std::string prompt;
  std::string default_reply;
};
PromptText SplitPrompt(std::string_view formatted);

}  // namespace wb
