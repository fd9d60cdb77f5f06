// Known folders lie where the run wants them.
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

}  // namespace

HookRows FolderHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(SHGetFolderPathW)>("SHGetFolderPathW", &HookSHGetFolderPathW),
      HookRow<decltype(SHGetSpecialFolderPathW)>("SHGetSpecialFolderPathW",
                                                 &HookSHGetSpecialFolderPathW),
  };
  return kRows;
}

}  // namespace wb
