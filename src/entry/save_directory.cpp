// Writes the working directory at exit.
#include "entry/save_directory.h"

#include <windows.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <new>
#include <optional>
#include <string>
#include <string_view>

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

// Nothing when the locale lacks a character of `folder`, or has only a similar one for it: a name
// that is not read back as it was is another folder's.
std::optional<std::string> InLocale(const std::wstring& folder) {
  char bytes[2 * PRO_PATH_SIZE];
  const std::size_t length = std::wcstombs(bytes, folder.c_str(), sizeof(bytes));
  if (length >= sizeof(bytes)) return std::nullopt;
  wchar_t again[2 * PRO_PATH_SIZE];
  const std::size_t count = std::mbstowcs(again, bytes, std::size(again));
  if (count >= std::size(again) || folder != std::wstring_view(again, count)) return std::nullopt;
  return std::string(bytes, length);
}

// `folder` in the code page of Chinese Windows, so that Chinese folder names survive; in the
// system's own where the C runtime lacks that locale.
std::optional<std::string> Encoded(const std::wstring& folder) {
  const CharacterLocale chinese("chs");
  return chinese.is_set() ? InLocale(folder) : ToAnsiExactly(folder);
}

// Nothing when it cannot be told whole, for want of memory, too.
std::optional<std::string> CurrentDirectory() try {
  ProPath buffer = {};
  const ProError status = ProDirectoryCurrentGet(buffer);
  if (!Ok(status)) {
    LogEvent(std::string("working directory not saved, the host answered ") + StatusName(status));
    return std::nullopt;
  }
  const std::wstring folder(FixedText(buffer));
  auto line = Encoded(folder);
  if (!line) LogEvent("working directory not saved, its name cannot be written: " + ToUtf8(folder));
  return line;
} catch (const std::bad_alloc&) {
  LogEvent("working directory not saved, no memory");
  return std::nullopt;
}

bool WriteFile(const std::wstring& path, const std::string& text) {
  std::FILE* const file = ::_wfopen(path.c_str(), L"w");
  if (file == nullptr) return false;
  const bool is_put = std::fputs(text.c_str(), file) >= 0;
  return std::fclose(file) == 0 && is_put;
}

}  // namespace

void SaveWorkingDirectory() {
  const std::wstring path = ConfigPath(kLastDirectoryFile);
  const std::optional<std::string> line = CurrentDirectory();
  if (line && WriteFile(path, *line)) return;
  // Empty rather than with an older directory, or with the beginning of one: the next start would
  // go to a folder that the user has left long ago.
  if (!WriteFile(path, {})) LogEvent("the file of the last working directory cannot be written");
}

}  // namespace qm
