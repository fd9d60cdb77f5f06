// The message area: notes and prompts that the plug-in shows through its message files.
#pragma once

#include <cstdarg>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "workbench/message_file.h"

namespace wb {

class MessageArea {
 public:
  // Texts shown, in order, with their arguments filled in.
  std::vector<std::string> notes;

  // The text of `key` in `file` of the folder, arguments fetched from `arguments` by the codes the
  // text uses. No value: the file or the key is missing (the reason goes to `why`).
  std::optional<std::string> Fill(const std::filesystem::path& folder, const std::string& file,
                                  const std::string& key, va_list arguments, std::string& why);
  void Forget() { files_.clear(); }

 private:
  const MessageFile* Open(const std::filesystem::path& path, std::string& why);
  std::map<std::filesystem::path, MessageFile> files_;
};

}  // namespace wb
