// Settings files stay real; reading and writing them can be made to fail.
#include <cwchar>

#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

// What Windows leaves when it may not open the file.
constexpr DWORD kRefused = ERROR_ACCESS_DENIED;

// Runs the crossing and leaves the error that Windows left in it, whatever the host did since.
template <typename Result, typename Body>
Result ProfileCrossing(const char* function, const std::string& arguments, Result failure,
                       Body&& body) {
  DWORD error = kRefused;
  const Result result = WindowsCrossing(function, arguments, failure, [&](const Call&) {
    ::SetLastError(ERROR_SUCCESS);
    const Result answer = body();
    error = ::GetLastError();
    return answer;
  });
  ::SetLastError(error);
  return result;
}

// A failure gives the default, as a missing entry does; only the error tells them apart.
DWORD WINAPI HookGetPrivateProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR otherwise,
                                          LPWSTR value, DWORD size, LPCWSTR file) {
  if (value != nullptr && size > 0) {
    const std::wstring_view text = otherwise == nullptr ? L"" : otherwise;
    const size_t length = text.copy(value, size - 1);
    value[length] = L'\0';
  }
  const DWORD failure = value == nullptr ? 0 : static_cast<DWORD>(std::wcslen(value));
  return ProfileCrossing(
      "GetPrivateProfileStringW", DescribeArgument(section) + ", " + DescribeArgument(key), failure,
      [&] { return ::GetPrivateProfileStringW(section, key, otherwise, value, size, file); });
}

BOOL WINAPI HookWritePrivateProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR value,
                                           LPCWSTR file) {
  return ProfileCrossing(
      "WritePrivateProfileStringW",
      DescribeArgument(section) + ", " + DescribeArgument(key) + ", " + DescribeArgument(value),
      BOOL{FALSE}, [&] { return ::WritePrivateProfileStringW(section, key, value, file); });
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
