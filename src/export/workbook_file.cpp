// Choice, check and opening of a workbook's file.
#include "export/workbook_file.h"

#include <windows.h>

#include <commdlg.h>
#include <shellapi.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <array>
#include <iterator>

#include "frame/message_box.h"
#include "frame/run_log.h"

namespace qm {
namespace {

constexpr wchar_t kHeldOpen[] = L"文件已在excel打开，请关闭后重试";
constexpr wchar_t kFilter[] = L"EXCEL文件(*.xlsx)\0*.xlsx\0 All Files (*.*) \0*.*\0";
// Without the point, which the dialog adds itself.
constexpr wchar_t kExtension[] = L"xlsx";
constexpr size_t kLongestPath = 4096;

// A file dialog makes the folder that the user looks at the process's working directory.
class WorkingDirectory {
 public:
  WorkingDirectory() : path_(::GetCurrentDirectoryW(0, nullptr), L'\0') {
    ::GetCurrentDirectoryW(static_cast<DWORD>(path_.size()), path_.data());
  }
  WorkingDirectory(const WorkingDirectory&) = delete;
  WorkingDirectory& operator=(const WorkingDirectory&) = delete;
  ~WorkingDirectory() { ::SetCurrentDirectoryW(path_.c_str()); }

 private:
  std::wstring path_;
};

}  // namespace

std::optional<std::wstring> ChooseWorkbookFile() {
  wchar_t desktop[MAX_PATH] = {};
  ::SHGetSpecialFolderPathW(nullptr, desktop, CSIDL_DESKTOPDIRECTORY, FALSE);
  std::array<wchar_t, kLongestPath> path = {};
  OPENFILENAMEW dialog = {};
  dialog.lStructSize = sizeof(dialog);
  dialog.hwndOwner = ::GetActiveWindow();
  dialog.lpstrFilter = kFilter;
  dialog.nFilterIndex = 1;
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  dialog.lpstrInitialDir = desktop;
  dialog.lpstrDefExt = kExtension;
  dialog.Flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;
  const WorkingDirectory restored_at_the_end;
  if (!::GetSaveFileNameW(&dialog)) return std::nullopt;
  path.back() = L'\0';
  if (path[0] == L'\0') return std::nullopt;
  return path.data();
}

bool IsFreeToWrite(const std::wstring& path, OldFile old_file) {
  // That it cannot be deleted shows when it is opened.
  if (old_file == OldFile::kDelete && ::PathFileExistsW(path.c_str())) ::DeleteFileW(path.c_str());
  const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_ALL, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file != INVALID_HANDLE_VALUE) {
    ::CloseHandle(file);
    return true;
  }
  const DWORD error = ::GetLastError();
  // Any other failure, normally that there is no such file, does not stand in the way.
  if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) return true;
  ShowMessage(path + kHeldOpen);
  return false;
}

void OpenWorkbookFile(const std::wstring& path) {
  ::ShellExecuteW(nullptr, L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace qm
