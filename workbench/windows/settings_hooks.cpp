// Settings files stay real; reading and writing them can be made to fail.
#include <cwchar>

#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

// A failure gives the default, as a missing entry does; only the error tells them apart.
DWORD WINAPI HookGetPrivateProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR otherwise,
                                          LPWSTR value, DWORD size, LPCWSTR file) {
  if (value != nullptr && size > 0) {
    const std::wstring_view text = otherwise == nullptr ? L"" : otherwise;
    const size_t length = text.copy(value, size - 1);
    value[length] = L'\0';
  }
  const DWORD failure = value == nullptr ? 0 : static_cast<DWORD>(std::wcslen(value));
  return ErrorCrossing(
      "GetPrivateProfileStringW", DescribeArgument(section) + ", " + DescribeArgument(key), failure,
      ERROR_ACCESS_DENIED, [&] {
        ::SetLastError(ERROR_SUCCESS);
        return ::GetPrivateProfileStringW(section, key, otherwise, value, size, file);
      });
}

BOOL WINAPI HookWritePrivateProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR value,
                                           LPCWSTR file) {
  return ErrorCrossing(
      "WritePrivateProfileStringW",
      DescribeArgument(section) + ", " + DescribeArgument(key) + ", " + DescribeArgument(value),
      BOOL{FALSE}, ERROR_ACCESS_DENIED,
      [&] { return ::WritePrivateProfileStringW(section, key, value, file); });
}

}  // namespace

HookRows SettingsHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(GetPrivateProfileStringW)>("GetPrivateProfileStringW",
                                                  &HookGetPrivateProfileStringW),
      HookRow<decltype(WritePrivateProfileStringW)>("WritePrivateProfileStringW",
                                                    &HookWritePrivateProfileStringW),
  };
  return kRows;
}

}  // namespace wb
