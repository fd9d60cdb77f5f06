// Files stay real, but for folders in which nobody may write.
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

HANDLE WINAPI HookCreateFileW(LPCWSTR path, DWORD access, DWORD share,
                              LPSECURITY_ATTRIBUTES security, DWORD disposition, DWORD flags,
                              HANDLE like) {
  if (IsRefused(path, access)) {
    ::SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
  }
  return ::CreateFileW(path, access, share, security, disposition, flags, like);
}

}  // namespace

HookRows FileHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(CreateFileW)>("CreateFileW", &HookCreateFileW, false),
  };
  return kRows;
}

}  // namespace wb
