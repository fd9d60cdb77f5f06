// Notes in the message area.
#include "frame/messages/message_area.h"

#include <string>

namespace qm {

void DisplayNote(const char* key, const wchar_t* argument) {
  // The host takes the file's name as changeable text.
  std::wstring file_name = kNoteFile;
  if (argument != nullptr) {
    ProMessageDisplay(file_name.data(), key, argument);
  } else {
    ProMessageDisplay(file_name.data(), key);
  }
}

}  // namespace qm
