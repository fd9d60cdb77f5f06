// Looks up the plug-in's texts and fills in their arguments.
#include "workbench/host/message_area.h"

#include <cstring>

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"
#include "workbench/host/call.h"

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

namespace {

bool IsReadable(const void* place) {
  MEMORY_BASIC_INFORMATION memory = {};
  if (::VirtualQuery(place, &memory, sizeof(memory)) == 0) return false;
  return memory.State == MEM_COMMIT && (memory.Protect & (PAGE_NOACCESS | PAGE_GUARD)) == 0;
}

// Numbers go by address; a number given as itself is hardly ever the address of something.
template <typename Number>
Number NumberAt(const void* place, const MessageRecord& record) {
  if (!IsReadable(place))
    throw Misuse{"a number of \"" + record.key + "\" is not given by address"};
  Number number;
  std::memcpy(&number, place, sizeof(number));
  return number;
}

template <typename Character>
const Character* TextAt(const Character* text, const MessageRecord& record) {
  if (text == nullptr) throw Misuse{"null text as an argument of \"" + record.key + "\""};
  return text;
}

}  // namespace

std::string FilledIn(const MessageRecord& record, va_list arguments) {
  std::vector<MessageArg> values;
  for (const MessageArgCode& code : record.arguments) {
    const void* const place = va_arg(arguments, const void*);
    if (code.type == MessageArgType::kInteger) {
      values.emplace_back(std::int64_t{NumberAt<int>(place, record)});
    } else if (code.type == MessageArgType::kDouble) {
      values.emplace_back(NumberAt<double>(place, record));
    } else if (code.type == MessageArgType::kWide) {
      values.emplace_back(FromWide(TextAt(static_cast<const wchar_t*>(place), record)));
    } else {
      values.emplace_back(FromAnsi(TextAt(static_cast<const char*>(place), record)));
    }
  }
  return FormatMessageText(record.Text(), values);
}

}  // namespace wb
