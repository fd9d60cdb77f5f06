// Settings files through Windows' private-profile functions.
#include "frame/settings/config.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

#include "frame/settings/config_rules.h"
#include "frame/text/fixed_text.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// Errors that a reading of an existing file ends with. A missing section leaves an error as well,
// and a successful read may leave any, so no other one is taken for a failure.
constexpr DWORD kReadErrors[] = {
    ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION,      ERROR_CRC,
    ERROR_READ_FAULT,    ERROR_NOT_ENOUGH_MEMORY, ERROR_NO_SYSTEM_RESOURCES, ERROR_IO_DEVICE,
};

struct ReadAnswer {
  std::wstring text;
  bool failed = false;  // Windows says so
};

ReadAnswer AskProfile(const wchar_t* section, const wchar_t* key, const std::wstring& path) {
  constexpr DWORD kBufferSize = 255;
  wchar_t value[kBufferSize] = {};
  ::SetLastError(ERROR_SUCCESS);
  ::GetPrivateProfileStringW(section, key, L"", value, kBufferSize, path.c_str());
  const DWORD error = ::GetLastError();
  return {value, std::ranges::find(kReadErrors, error) != std::end(kReadErrors)};
}

// Keeps a file open for reading, so that nobody else can shut readers out.
class HeldFile {
 public:
  explicit HeldFile(const std::wstring& path)
      : file_(::CreateFileW(path.c_str(), GENERIC_READ,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)),
        error_(file_ == INVALID_HANDLE_VALUE ? ::GetLastError() : ERROR_SUCCESS) {}
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;
  ~HeldFile() {
    if (file_ != INVALID_HANDLE_VALUE) ::CloseHandle(file_);
  }

  bool is_missing() const {
    return error_ == ERROR_FILE_NOT_FOUND || error_ == ERROR_PATH_NOT_FOUND ||
           error_ == ERROR_INVALID_NAME;
  }
  bool is_unreadable() const { return error_ != ERROR_SUCCESS && !is_missing(); }

 private:
  HANDLE file_;
  DWORD error_;
};

// A new file in UTF-16, as the shipped ones are: one that Windows itself makes is in the code page,
// and holds question marks for all that the code page lacks.
void CreateWhereMissing(const std::wstring& path) {
  constexpr wchar_t kByteOrderMark = 0xFEFF;
  const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  DWORD written = 0;
  ::WriteFile(file, &kByteOrderMark, sizeof(kByteOrderMark), &written, nullptr);
  ::CloseHandle(file);
}

}  // namespace

namespace {

std::wstring ModulePath() {
  wchar_t path[MAX_PATH] = {};
  const HMODULE module = ::GetModuleHandleW(kPluginFileName);
  // Without a module Windows would answer with the host's own file.
  const DWORD length = module != nullptr ? ::GetModuleFileNameW(module, path, MAX_PATH) : 0;
  return {path, length};
}

}  // namespace

std::wstring ConfigPath(const wchar_t* file) {
  return ConfigPathBeside(ModulePath(), kPluginFileName, file);
}

std::wstring InstalledPath(const wchar_t* name) {
  return PathBeside(ModulePath(), kPluginFileName, name);
}

std::wstring TextFolderConfigPath(const wchar_t* file) {
  ProPath buffer = {};
  if (!Ok(ProToolkitApplTextPathGet(buffer))) return ConfigPath(file);
  const std::wstring_view folder = FixedText(buffer);
  return folder.empty() ? ConfigPath(file) : ConfigPathIn(folder, file);
}

std::optional<std::wstring> TryReadSetting(const wchar_t* section, const wchar_t* key,
                                           const std::wstring& path) {
  // A file of which nobody knows where it lies is not a missing one.
  if (LeadsNowhere(path)) return std::nullopt;
  ReadAnswer answer = AskProfile(section, key, path);
  if (!answer.text.empty()) return answer.text;
  // Windows gives no status: an empty text may be what is stored, stand for a missing file or key,
  // or be all that came of a failed read. A file that is there is therefore held open and asked
  // again; what is still empty then, without an error of reading, is taken for empty.
  const HeldFile file(path);
  if (file.is_missing()) return std::wstring();
  if (file.is_unreadable()) return std::nullopt;
  answer = AskProfile(section, key, path);
  if (answer.text.empty() && answer.failed) return std::nullopt;
  return answer.text;
}

std::wstring ReadSetting(const wchar_t* section, const wchar_t* key, const std::wstring& path) {
  return TryReadSetting(section, key, path).value_or(std::wstring());
}

bool WriteSetting(const wchar_t* section, const wchar_t* key, const std::wstring& value,
                  const std::wstring& path) {
  // Not every system refuses a file in a folder that cannot be.
  if (LeadsNowhere(path)) return false;
  CreateWhereMissing(path);
  return ::WritePrivateProfileStringW(section, key, value.c_str(), path.c_str()) != FALSE;
}

}  // namespace qm
