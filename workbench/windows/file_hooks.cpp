// Files stay real, but for folders in which nobody may write; each call that makes, opens, writes,
// moves or looks at one can be made to fail.
#include <cstdio>
#include <filesystem>
#include <set>

#include "workbench/base/text.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

bool IsRefused(LPCWSTR path, DWORD access) {
  const bool writes = (access & (GENERIC_WRITE | GENERIC_ALL | FILE_APPEND_DATA | DELETE)) != 0;
  const auto folder = PathFromUtf8(Utf8(path)).parent_path();
  return writes && TheHost().session.IsReadOnly(folder);
}

// The plug-in's run log, or its folder.
bool IsOfRunLog(LPCWSTR path) {
  const std::filesystem::path& local = TheHost().windows.local_app_folder;
  if (path == nullptr || local.empty()) return false;
  const std::filesystem::path folder = (local / "Quillmax").lexically_normal();
  const std::filesystem::path asked = std::filesystem::path(path).lexically_normal();
  return asked == folder || asked.parent_path() == folder;
}

// A handle goes to another file once it is closed.
void NoteHandle(HANDLE file, bool is_of_run_log) {
  std::set<void*>& log_files = TheHost().windows.log_files;
  if (is_of_run_log) {
    log_files.insert(file);
  } else {
    log_files.erase(file);
  }
}

bool IsOfRunLog(HANDLE file) {
  return TheHost().windows.log_files.contains(file);
}

HANDLE WINAPI HookCreateFileW(LPCWSTR path, DWORD access, DWORD share,
                              LPSECURITY_ATTRIBUTES security, DWORD disposition, DWORD flags,
                              HANDLE like) {
  const bool is_of_run_log = IsOfRunLog(path);
  const HANDLE file = ErrorCrossing(
      "CreateFileW", DescribeArgument(path), INVALID_HANDLE_VALUE, ERROR_ACCESS_DENIED,
      [&] {
        if (!IsRefused(path, access)) {
          return ::CreateFileW(path, access, share, security, disposition, flags, like);
        }
        ::SetLastError(ERROR_ACCESS_DENIED);
        return INVALID_HANDLE_VALUE;
      },
      is_of_run_log);
  if (file != INVALID_HANDLE_VALUE) NoteHandle(file, is_of_run_log);
  return file;
}

BOOL WINAPI HookWriteFile(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written,
                          LPOVERLAPPED overlapped) {
  return ErrorCrossing(
      "WriteFile", std::to_string(size), BOOL{FALSE}, ERROR_DISK_FULL,
      [&] { return ::WriteFile(file, bytes, size, written, overlapped); }, IsOfRunLog(file));
}

BOOL WINAPI HookGetFileSizeEx(HANDLE file, PLARGE_INTEGER size) {
  return ErrorCrossing(
      "GetFileSizeEx", "", BOOL{FALSE}, ERROR_IO_DEVICE,
      [&] { return ::GetFileSizeEx(file, size); }, IsOfRunLog(file));
}

BOOL WINAPI HookSetFileTime(HANDLE file, const FILETIME* created, const FILETIME* read,
                            const FILETIME* written) {
  return ErrorCrossing("SetFileTime", "", BOOL{FALSE}, ERROR_ACCESS_DENIED,
                       [&] { return ::SetFileTime(file, created, read, written); });
}

BOOL WINAPI HookCreateDirectoryW(LPCWSTR path, LPSECURITY_ATTRIBUTES security) {
  return ErrorCrossing(
      "CreateDirectoryW", DescribeArgument(path), BOOL{FALSE}, ERROR_ACCESS_DENIED,
      [&] { return ::CreateDirectoryW(path, security); }, IsOfRunLog(path));
}

BOOL WINAPI HookDeleteFileW(LPCWSTR path) {
  return ErrorCrossing("DeleteFileW", DescribeArgument(path), BOOL{FALSE}, ERROR_ACCESS_DENIED,
                       [&] { return ::DeleteFileW(path); });
}

BOOL WINAPI HookMoveFileExW(LPCWSTR from, LPCWSTR to, DWORD flags) {
  return ErrorCrossing("MoveFileExW", DescribeArgument(from) + ", " + DescribeArgument(to),
                       BOOL{FALSE}, ERROR_ACCESS_DENIED,
                       [&] { return ::MoveFileExW(from, to, flags); });
}

BOOL WINAPI HookCopyFileW(LPCWSTR from, LPCWSTR to, BOOL only_new) {
  return ErrorCrossing("CopyFileW", DescribeArgument(from) + ", " + DescribeArgument(to),
                       BOOL{FALSE}, ERROR_ACCESS_DENIED,
                       [&] { return ::CopyFileW(from, to, only_new); });
}

DWORD WINAPI HookGetFileAttributesW(LPCWSTR path) {
  return ErrorCrossing("GetFileAttributesW", DescribeArgument(path), INVALID_FILE_ATTRIBUTES,
                       ERROR_ACCESS_DENIED, [&] { return ::GetFileAttributesW(path); });
}

BOOL WINAPI HookGetFileAttributesExW(LPCWSTR path, GET_FILEEX_INFO_LEVELS level, LPVOID data) {
  return ErrorCrossing("GetFileAttributesExW", DescribeArgument(path), BOOL{FALSE},
                       ERROR_ACCESS_DENIED,
                       [&] { return ::GetFileAttributesExW(path, level, data); });
}

BOOL WINAPI HookSetFileAttributesW(LPCWSTR path, DWORD attributes) {
  return ErrorCrossing("SetFileAttributesW", DescribeArgument(path), BOOL{FALSE},
                       ERROR_ACCESS_DENIED, [&] { return ::SetFileAttributesW(path, attributes); });
}

// A look into a folder.
HANDLE WINAPI HookFindFirstFileW(LPCWSTR pattern, LPWIN32_FIND_DATAW found) {
  return ErrorCrossing("FindFirstFileW", DescribeArgument(pattern), INVALID_HANDLE_VALUE,
                       ERROR_ACCESS_DENIED, [&] { return ::FindFirstFileW(pattern, found); });
}

BOOL WINAPI HookFindNextFileW(HANDLE search, LPWIN32_FIND_DATAW found) {
  return ErrorCrossing("FindNextFileW", "", BOOL{FALSE}, ERROR_IO_DEVICE,
                       [&] { return ::FindNextFileW(search, found); });
}

FILE* HookWfopen(const wchar_t* path, const wchar_t* mode) {
  return WindowsCrossing("_wfopen", DescribeArgument(path) + ", " + DescribeArgument(mode),
                         static_cast<FILE*>(nullptr),
                         [&](const Call&) { return ::_wfopen(path, mode); });
}

size_t HookFread(void* bytes, size_t size, size_t count, FILE* file) {
  return WindowsCrossing("fread", std::to_string(count), size_t{0},
                         [&](const Call&) { return std::fread(bytes, size, count, file); });
}

int HookFputs(const char* text, FILE* file) {
  return WindowsCrossing("fputs", DescribeArgument(text), EOF,
                         [&](const Call&) { return std::fputs(text, file); });
}

// One that fails has closed the file all the same.
int HookFclose(FILE* file) {
  const int closed = std::fclose(file);
  return WindowsCrossing("fclose", "", EOF, [&](const Call&) { return closed; });
}

}  // namespace

HookRows FileHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(CreateFileW)>("CreateFileW", &HookCreateFileW),
      HookRow<decltype(WriteFile)>("WriteFile", &HookWriteFile),
      HookRow<decltype(GetFileSizeEx)>("GetFileSizeEx", &HookGetFileSizeEx),
      HookRow<decltype(SetFileTime)>("SetFileTime", &HookSetFileTime),
      HookRow<decltype(CreateDirectoryW)>("CreateDirectoryW", &HookCreateDirectoryW),
      HookRow<decltype(DeleteFileW)>("DeleteFileW", &HookDeleteFileW),
      HookRow<decltype(MoveFileExW)>("MoveFileExW", &HookMoveFileExW),
      HookRow<decltype(CopyFileW)>("CopyFileW", &HookCopyFileW),
      HookRow<decltype(GetFileAttributesW)>("GetFileAttributesW", &HookGetFileAttributesW),
      HookRow<decltype(GetFileAttributesExW)>("GetFileAttributesExW", &HookGetFileAttributesExW),
      HookRow<decltype(SetFileAttributesW)>("SetFileAttributesW", &HookSetFileAttributesW),
      HookRow<decltype(FindFirstFileW)>("FindFirstFileW", &HookFindFirstFileW),
      HookRow<decltype(FindNextFileW)>("FindNextFileW", &HookFindNextFileW),
      HookRow<decltype(_wfopen)>("_wfopen", &HookWfopen),
      HookRow<decltype(std::fread)>("fread", &HookFread),
      HookRow<decltype(std::fputs)>("fputs", &HookFputs),
      HookRow<decltype(std::fclose)>("fclose", &HookFclose),
  };
  return kRows;
}

}  // namespace wb
