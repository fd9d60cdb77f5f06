// Looks up the plug-in's texts and fills in their arguments.
#include "workbench/host/message_area.h"

#include "workbench/base/text.h"
#include "workbench/host/host.h"

namespace wb {

const MessageRecord* MessageArea::Find(const std::filesystem::path& file, const std::string& key) {
  auto found = files_.find(file);
  if (found == files_.end()) {
    if (!std::filesystem::is_regular_file(file)) {
      events_.Add(MissingText{"there is no message file " + PathToUtf8(file)});
      return nullptr;
    }
    found = files_.emplace(file, MessageFile::Load(file)).first;
  }
  const MessageRecord* const record = found->second.Find(key);
  if (record == nullptr) {
    events_.Add(MissingText{PathToUtf8(file) + " has no key \"" + key + "\""});
  }
  return record;
}

std::filesystem::path MessagePath(const Host& host, const std::string& file) {
  return host.install_folder / "text" / host.language / PathFromUtf8(file);
}

std::optional<std::string> FilledIn(const MessageRecord& record, va_list arguments) {
  std::vector<MessageArg> values;
  for (const MessageArgCode& code : record.arguments) {
    if (code.type == MessageArgType::kInteger) {
      values.emplace_back(std::int64_t{va_arg(arguments, int)});
    } else if (code.type == MessageArgType::kDouble) {
      values.emplace_back(va_arg(arguments, double));
    } else if (code.type == MessageArgType::kWide) {
      const wchar_t* const text = va_arg(arguments, const wchar_t*);
      if (text == nullptr) return std::nullopt;
      values.emplace_back(FromWide(text));
    } else {
      const char* const text = va_arg(arguments, const char*);
      if (text == nullptr) return std::nullopt;
      values.emplace_back(FromAnsi(text));
    }
  }
  return FormatMessageText(record.Text(), values);
}

}  // namespace wb
