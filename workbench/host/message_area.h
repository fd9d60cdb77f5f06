// The message area: notes and prompts that the plug-in shows through its message files.
#pragma once

#include <cstdarg>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "workbench/base/message_file.h"
#include "workbench/host/events.h"

namespace wb {

struct Host;

class MessageArea {
 public:
  explicit MessageArea(Events& events) : events_(events) {}

  // Null when the file or the key is missing, which is an event. Throws MessageFileError for a file
  // that is there but broken.
  const MessageRecord* Find(const std::filesystem::path& file, const std::string& key);
  // Reads every file anew from now on.
  void Forget() { files_.clear(); }

 private:
  Events& events_;
  std::map<std::filesystem::path, MessageFile> files_;
};

// Where the host looks for the plug-in's message file: the text folder of the language.
std::filesystem::path MessagePath(const Host& host, const std::string& file);

// The text with its arguments, which are fetched in order by the codes the record uses. Throws
// Misuse for a text that is null and for a number that is not given by address.
std::string FilledIn(const MessageRecord& record, va_list arguments);

}  // namespace wb
