// Writes the working directory at exit.
#include "entry/save_directory.h"

#include <windows.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include "frame/messages/run_log.h"
#include "frame/settings/config.h"
#include "frame/text/fixed_text.h"
#include "frame/text/text.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// The C runtime's character-type locale for a while: the host shares it.
class CharacterLocale {
 public:
  explicit CharacterLocale(const char* name) {
    const char* const current = std::setlocale(LC_CTYPE, nullptr);
    previous_ = current != nullptr ? current : "C";
    is_set_ = std::setlocale(LC_CTYPE, name) != nullptr;
  }
  CharacterLocale(const CharacterLocale&) = delete;
  CharacterLocale& operator=(const CharacterLocale&) = delete;
  ~CharacterLocale() { std::setlocale(LC_CTYPE, previous_.c_str()); }

  bool is_set() const { return is_set_; }

 private:
  std::string previous_;
  bool is_set_;
};

// `folder` in the code page of Chinese Windows, so that Chinese folder names survive; in the
// system's own where the C runtime lacks that locale.
std::optional<std::string> Encoded(const std::wstring& folder) {
  const CharacterLocale chinese("chs");
  if (!chinese.is_set()) return ToAnsiExactly(folder);
  char bytes[2 * PRO_PATH_SIZE];
  const std::size_t length = std::wcstombs(bytes, folder.c_str(), sizeof(bytes));
  if (length >= sizeof(bytes)) return std::nullopt;
  return std::string(bytes, length);
}

}  // namespace

void SaveWorkingDirectory() {
  ProPath buffer = {};
  if (!Ok(ProDirectoryCurrentGet(buffer))) return;
  const std::wstring folder(FixedText(buffer));
  if (folder.empty()) return;
  const std::optional<std::string> line = Encoded(folder);
  if (!line) {
    LogEvent("working directory not saved, its name cannot be written: " + ToUtf8(folder));
    return;
  }
  std::FILE* const file = ::_wfopen(ConfigPath(kLastDirectoryFile).c_str(), L"w");
  if (file == nullptr) return;
  std::fputs(line->c_str(), file);
  std::fclose(file);
}

}  // namespace qm
