// Choice, check and opening of a workbook's file.
#include "export/spreadsheet/workbook_file.h"

#include <windows.h>

#include <commdlg.h>
#include <shellapi.h>
#include <shlobj.h>

#include <array>
#include <iterator>

#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"

namespace qm {
namespace {

constexpr wchar_t kHeldOpen[] = L"文件已在excel打开，请关闭后重试";
constexpr wchar_t kWriteFilter[] = L"EXCEL文件(*.xlsx)\0*.xlsx\0 All Files (*.*) \0*.*\0";
constexpr wchar_t kReadFilter[] = L"Microsoft Excel 2000(*.xls)\0*.xls\0所有文件(*.*)\0*.*\0";
constexpr wchar_t kReadExtension[] = L"xls";
constexpr wchar_t kReadTitle[] = L"请选择需要加载的批量重命名表格文件";
// Without the point, which the dialog adds itself.
constexpr wchar_t kWriteExtension[] = L"xlsx";
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

// Both file dialogs: nothing when the user cancels.
std::optional<std::wstring> Choose(BOOL(WINAPI* ask)(OPENFILENAMEW*), OPENFILENAMEW dialog) {
  std::array<wchar_t, kLongestPath> path = {};
  dialog.lStructSize = sizeof(dialog);
  dialog.hwndOwner = ::GetActiveWindow();
  dialog.nFilterIndex = 1;
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  const WorkingDirectory restored_at_the_end;
  if (!ask(&dialog)) {
    const DWORD error = ::CommDlgExtendedError();
    if (error != 0) LogEvent("the file dialog failed with error " + std::to_string(error));
    return std::nullopt;
  }
  path.back() = L'\0';
  if (path[0] == L'\0') return std::nullopt;
  return path.data();
}

// Told by its attribute, too: not every file system keeps an administrator from a protected file.
bool IsProtected(const std::wstring& path) {
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

// Windows' answer; where it is an error, normally that there is no such file.
DWORD TryToReplace(const std::wstring& path) {
  if (IsProtected(path)) return ERROR_ACCESS_DENIED;
  const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_ALL, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return ::GetLastError();
  ::CloseHandle(file);
  return ERROR_SUCCESS;
}

}  // namespace

std::optional<std::wstring> ChooseWorkbookToWrite() {
  wchar_t desktop[MAX_PATH] = {};
  ::SHGetSpecialFolderPathW(nullptr, desktop, CSIDL_DESKTOPDIRECTORY, FALSE);
  OPENFILENAMEW dialog = {};
  dialog.lpstrFilter = kWriteFilter;
  dialog.lpstrInitialDir = desktop;
  dialog.lpstrDefExt = kWriteExtension;
  dialog.Flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;
  return Choose(&::GetSaveFileNameW, dialog);
}

std::optional<std::wstring> ChooseWorkbookToRead() {
  OPENFILENAMEW dialog = {};
  dialog.lpstrFilter = kReadFilter;
  dialog.lpstrTitle = kReadTitle;
  dialog.lpstrDefExt = kReadExtension;
  dialog.Flags = OFN_HIDEREADONLY | OFN_FILEMUSTEXIST;
  return Choose(&::GetOpenFileNameW, dialog);
}

bool IsFreeToWrite(const std::wstring& path) {
  // Any other failure does not stand in the way.
  if (!IsHeldOpen(TryToReplace(path))) return true;
  ShowHeldOpen(path);
  return false;
}

bool IsHeldOpen(unsigned long error) {
  return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
}

void ShowHeldOpen(const std::wstring& path) {
  ShowMessage(path + kHeldOpen);
}

void OpenWorkbookFile(const std::wstring& path) {
  const HINSTANCE answer =
      ::ShellExecuteW(nullptr, L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  constexpr INT_PTR kLastFailure = 32;
  const auto number = reinterpret_cast<INT_PTR>(answer);
  if (number > kLastFailure) return;
  LogFailure("the workbook cannot be opened, Windows answered " + std::to_string(number));
}

}  // namespace qm
