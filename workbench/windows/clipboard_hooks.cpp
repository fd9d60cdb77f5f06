// The clipboard stays real; each call on it, and on the memory handed to it, can be made to fail.
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {
namespace {

BOOL WINAPI HookOpenClipboard(HWND owner) {
  return ErrorCrossing("OpenClipboard", "", BOOL{FALSE}, ERROR_ACCESS_DENIED,
                       [&] { return ::OpenClipboard(owner); });
}

BOOL WINAPI HookEmptyClipboard() {
  return ErrorCrossing("EmptyClipboard", "", BOOL{FALSE}, ERROR_ACCESS_DENIED,
                       [] { return ::EmptyClipboard(); });
}

HANDLE WINAPI HookSetClipboardData(UINT format, HANDLE data) {
  return ErrorCrossing("SetClipboardData", std::to_string(format), HANDLE{nullptr},
                       ERROR_ACCESS_DENIED, [&] { return ::SetClipboardData(format, data); });
}

// One that fails closes it all the same: it must not stay shut to everybody else.
BOOL WINAPI HookCloseClipboard() {
  const BOOL closed = ::CloseClipboard();
  return ErrorCrossing("CloseClipboard", "", BOOL{FALSE}, ERROR_ACCESS_DENIED,
                       [&] { return closed; });
}

HGLOBAL WINAPI HookGlobalAlloc(UINT flags, SIZE_T size) {
  return ErrorCrossing("GlobalAlloc", std::to_string(size), HGLOBAL{nullptr},
                       ERROR_NOT_ENOUGH_MEMORY, [&] { return ::GlobalAlloc(flags, size); });
}

LPVOID WINAPI HookGlobalLock(HGLOBAL memory) {
  return ErrorCrossing("GlobalLock", "", LPVOID{nullptr}, ERROR_NOT_ENOUGH_MEMORY,
                       [&] { return ::GlobalLock(memory); });
}

}  // namespace

HookRows ClipboardHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(OpenClipboard)>("OpenClipboard", &HookOpenClipboard),
      HookRow<decltype(EmptyClipboard)>("EmptyClipboard", &HookEmptyClipboard),
      HookRow<decltype(SetClipboardData)>("SetClipboardData", &HookSetClipboardData),
      HookRow<decltype(CloseClipboard)>("CloseClipboard", &HookCloseClipboard),
      HookRow<decltype(GlobalAlloc)>("GlobalAlloc", &HookGlobalAlloc),
      HookRow<decltype(GlobalLock)>("GlobalLock", &HookGlobalLock),
  };
  return kRows;
}

}  // namespace wb
