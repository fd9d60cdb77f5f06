// Host functions of the message area.
#include "workbench/api/message.h"

#include <charconv>
#include <cmath>

namespace wb {

std::string MessageFileIn::Look(const Call& call) const {
  const std::string name = call.Text(file, PRO_FILE_NAME_SIZE, "message file name");
  if (name.empty()) call.Fail("empty message file name");
  return name;
}

const MessageRecord* FindMessage(const Call& call, const std::string& file,
                                 const std::string& key) {
  try {
    return call.host.messages.Find(MessagePath(call.host, file), key);
  } catch (const MessageFileError& error) {
    call.host.ReportBreach(call.function, std::string("broken message file ") + error.what());
    return nullptr;
  }
}

namespace {

// The filled-in text; none when the file or the key is missing.
std::optional<std::string> FilledText(const Call& call, const std::string& file,
                                      const std::string& key, va_list arguments) {
  const MessageRecord* const record = FindMessage(call, file, key);
  if (record == nullptr) return std::nullopt;
  return FilledIn(*record, arguments);
}

// The range of a number that is asked for; null: any.
struct RangeIn {
  const double* range;
  std::string Describe() const {
    if (range == nullptr) return "null";
    return DescribeArgument(range[0]) + " to " + DescribeArgument(range[1]);
  }
  RangeIn Look(const Call&) const { return *this; }
  bool Has(double number) const {
    return range == nullptr || (range[0] <= number && number <= range[1]);
  }
};

constexpr int kLongestNumber = PRO_LINE_SIZE - 1;

std::optional<double> NumberIn(const std::string& text) {
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

// What the running command has shown last is what a reading call asks. Where that could not be
// shown the user sees no prompt.
PromptText LastPrompt(const Call& call) {
  const auto notes = call.host.events.Since<Note>(call.host.command_began);
  if (!notes.empty()) return SplitPrompt(notes.back().text);
  if (call.host.faults.struck() == 0) call.Fail("a reply without a prompt");
  return {};
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProMessageDisplay(wchar_t* file, const char* key, ...) {
  va_list arguments;
  va_start(arguments, key);
  const ProError status =
      Crossing(__func__, MessageFileIn{file}, MessageKeyIn(key))
          .Run([&](const Call& call, const std::string& name, const std::string& message) {
            const auto text = FilledText(call, name, message, arguments);
            if (!text) return PRO_TK_MSG_NOT_FOUND;
            call.host.events.Add(Note{*text});
            return PRO_TK_NO_ERROR;
          });
  va_end(arguments);
  return status;
}

ProError ProMessageDoubleRead(double* range, double* value) {
  return Crossing(__func__, RangeIn{range}, Out(value, "value place"))
      .Run([](const Call& call, const RangeIn& allowed, double& place) {
        const PromptText prompt = LastPrompt(call);
        while (call.host.user != nullptr) {
          const auto answer = call.host.user->AnswerPrompt(prompt.prompt, kLongestNumber);
          if (!answer) break;
          const std::string reply = answer->empty() ? prompt.default_reply : *answer;
          if (reply.empty()) return PRO_TK_GENERAL_ERROR;
          const auto number = NumberIn(reply);
          if (!number || !allowed.Has(*number)) continue;
          place = *number;
          return PRO_TK_NO_ERROR;
        }
        return PRO_TK_MSG_USER_QUIT;
      });
}

ProError ProMessageStringRead(int length, wchar_t* text) {
  return Crossing(__func__, length, OutText{text, PRO_LINE_SIZE})
      .Run([](const Call& call, int most, TextPlace place) {
        if (most < 1 || most >= PRO_LINE_SIZE) call.Fail("a length that no line has");
        const PromptText prompt = LastPrompt(call);
        if (call.host.user == nullptr) return PRO_TK_MSG_USER_QUIT;
        const auto answer = call.host.user->AnswerPrompt(prompt.prompt, most);
        if (!answer) return PRO_TK_MSG_USER_QUIT;
        const std::string reply = answer->empty() ? prompt.default_reply : *answer;
        if (reply.empty()) return PRO_TK_GENERAL_ERROR;
        // The host takes no more than it was told to.
        place = FromWide(ToWide(reply).substr(0, static_cast<size_t>(most)));
        return PRO_TK_NO_ERROR;
      });
}

ProError ProMessageToBuffer(wchar_t* line, wchar_t* file, const char* key, ...) {
  va_list arguments;
  va_start(arguments, key);
  const ProError status =
      Crossing(__func__, OutText{line, PRO_LINE_SIZE}, MessageFileIn{file}, MessageKeyIn(key))
          .Run([&](const Call& call, TextPlace place, const std::string& name,
                   const std::string& message) {
            const auto text = FilledText(call, name, message, arguments);
            if (!text) return PRO_TK_MSG_NOT_FOUND;
            if (ToWide(*text).size() >= PRO_LINE_SIZE) return PRO_TK_MSG_TOO_LONG;
            place = *text;
            return PRO_TK_NO_ERROR;
          });
  va_end(arguments);
  return status;
}
