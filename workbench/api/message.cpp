// Host functions of the message area.
#include "workbench/api/message.h"

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
