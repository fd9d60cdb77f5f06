// Known folders lie where the run wants them. The current directory is the real one.
#include <filesystem>

#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

#include <shlobj.h>

namespace wb {
namespace {

// The folder of a known-folder number, empty where Windows' own answer holds.
std::filesystem::path FolderOf(const Host& host, int number) {
  switch (number & ~CSIDL_FLAG_MASK) {
    case CSIDL_LOCAL_APPDATA:
      return host.windows.local_app_folder;
    case CSIDL_DESKTOP:
    case CSIDL_DESKTOPDIRECTORY:
      return host.windows.desktop_folder;
    default:
      return {};
  }
}

HRESULT WINAPI HookSHGetFolderPathW(HWND window, int number, HANDLE token, DWORD flags,
                                    LPWSTR path) {
  return WindowsCrossing("SHGetFolderPathW", std::to_string(number), HRESULT{E_FAIL},
                         [&](const Call& call) {
                           const std::filesystem::path folder = FolderOf(call.host, number);
                           if (folder.empty())
                             return ::SHGetFolderPathW(window, number, token, flags, path);
                           call.CopyText(path, MAX_PATH, PathToUtf8(folder));
                           return HRESULT{S_OK};
                         });
}

BOOL WINAPI HookSHGetSpecialFolderPathW(HWND window, LPWSTR path, int number, BOOL create) {
  return WindowsCrossing("SHGetSpecialFolderPathW", std::to_string(number), BOOL{FALSE},
                         [&](const Call& call) {
                           const std::filesystem::path folder = FolderOf(call.host, number);
                           if (folder.empty())
                             return ::SHGetSpecialFolderPathW(window, path, number, create);
                           call.CopyText(path, MAX_PATH, PathToUtf8(folder));
                           return BOOL{TRUE};
                         });
}

DWORD WINAPI HookGetCurrentDirectoryW(DWORD size, LPWSTR path) {
  return ErrorCrossing("GetCurrentDirectoryW", std::to_string(size), DWORD{0}, ERROR_ACCESS_DENIED,
                       [&] { return ::GetCurrentDirectoryW(size, path); });
}

BOOL WINAPI HookSetCurrentDirectoryW(LPCWSTR path) {
  return ErrorCrossing("SetCurrentDirectoryW", DescribeArgument(path), BOOL{FALSE},
                       ERROR_ACCESS_DENIED, [&] { return ::SetCurrentDirectoryW(path); });
}

}  // namespace

HookRows FolderHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(SHGetFolderPathW)>("SHGetFolderPathW", &HookSHGetFolderPathW),
      HookRow<decltype(SHGetSpecialFolderPathW)>("SHGetSpecialFolderPathW",
                                                 &HookSHGetSpecialFolderPathW),
      HookRow<decltype(GetCurrentDirectoryW)>("GetCurrentDirectoryW", &HookGetCurrentDirectoryW),
      HookRow<decltype(SetCurrentDirectoryW)>("SetCurrentDirectoryW", &HookSetCurrentDirectoryW),
  };
  return kRows;
}

}  // namespace wb
