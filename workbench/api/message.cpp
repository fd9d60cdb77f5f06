// Host functions of the message area.
#include "workbench/api/message.h"

namespace wb {

std::string MessageFileArgument(const Call& call, const wchar_t* file) {
  const std::string name = call.Text(file, PRO_FILE_NAME_SIZE, "message file name");
  if (name.empty()) call.Fail("empty message file name");
  return name;
}

const MessageRecord* MessageArgument(const Call& call, const std::string& file, const char* key) {
  const std::string text = call.Narrow(key, kNarrowLimit, "message key");
  try {
    return call.host.messages.Find(MessagePath(call.host, file), text);
  } catch (const MessageFileError& error) {
    call.host.ReportBreach(call.function, std::string("broken message file ") + error.what());
    return nullptr;
  }
}

namespace {

// Gives the filled-in text to `use`.
template <typename Use>
ProError WithText(const Call& call, const wchar_t* file, const char* key, va_list arguments,
                  Use&& use) {
  const MessageRecord* const record = MessageArgument(call, MessageFileArgument(call, file), key);
  if (record == nullptr) return PRO_TK_MSG_NOT_FOUND;
  const std::optional<std::string> text = FilledIn(*record, arguments);
  if (!text) call.Fail("null text as an argument of \"" + record->key + "\"");
  return use(*text);
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProMessageDisplay(wchar_t* file, const char* key, ...) {
  va_list arguments;
  va_start(arguments, key);
  const ProError status = Crossing("ProMessageDisplay", file, key).Run([&](Call& call) {
    return WithText(call, file, key, arguments, [&](const std::string& text) {
      call.host.messages.notes.push_back(text);
      return PRO_TK_NO_ERROR;
    });
  });
  va_end(arguments);
  return status;
}

ProError ProMessageToBuffer(wchar_t* line, wchar_t* file, const char* key, ...) {
  va_list arguments;
  va_start(arguments, key);
  const ProError status =
      Crossing("ProMessageToBuffer", OutText(line, PRO_LINE_SIZE), file, key).Run([&](Call& call) {
        call.Place(line, "line");
        return WithText(call, file, key, arguments, [&](const std::string& text) {
          if (ToWide(text).size() >= PRO_LINE_SIZE) return PRO_TK_MSG_TOO_LONG;
          call.CopyText(line, PRO_LINE_SIZE, text);
          return PRO_TK_NO_ERROR;
        });
      });
  va_end(arguments);
  return status;
}
