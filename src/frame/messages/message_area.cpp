// Notes in the message area.
#include "frame/messages/message_area.h"

#include <string>

#include "frame/messages/run_log.h"

namespace qm {

void DisplayNote(const char* key, const wchar_t* argument, const wchar_t* second) {
  // The host takes the file's name as changeable text.
  std::wstring file_name = kNoteFile;
  if (second != nullptr) {
    ProMessageDisplay(file_name.data(), key, argument, second);
  } else if (argument != nullptr) {
    ProMessageDisplay(file_name.data(), key, argument);
  } else {
    ProMessageDisplay(file_name.data(), key);
  }
}

void NoteLeftOut(long long count) {
  if (count <= 0) return;
  LogLeftOutCount(count);
  DisplayNote("Left out: %0w", std::to_wstring(count).c_str());
}

}  // namespace qm
