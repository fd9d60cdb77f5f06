// Message boxes and programs: the user of the workbench answers boxes, programs are not started.
#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

#include <shellapi.h>

namespace wb {
namespace {

int WINAPI HookMessageBoxW(HWND, LPCWSTR text, LPCWSTR caption, UINT style) {
  const MessageBox box{Utf8(caption), Utf8(text), style};
  return WindowsCrossing("MessageBoxW", DescribeArgument(text), 0, [&](const Call& call) {
    // The user cannot be asked from elsewhere: he may be at work on the interface's own thread.
    if (!call.host.OnUiThread()) return IDOK;
    call.host.events.Add(box);
    return call.host.user == nullptr ? IDOK : call.host.user->AnswerMessageBox(box);
  });
}

// ShellExecute and WinExec answer a number above 32 when they have started the program.
constexpr int kStarted = 33;
constexpr int kFileNotFound = 2;

HINSTANCE WINAPI HookShellExecuteW(HWND, LPCWSTR verb, LPCWSTR program, LPCWSTR parameters, LPCWSTR,
                                   INT show) {
  const int result = WindowsCrossing(
      "ShellExecuteW", DescribeArgument(program) + ", " + DescribeArgument(parameters),
      kFileNotFound, [&](const Call& call) {
        if (program == nullptr) call.Fail("null program");
        call.host.events.Add(
            ShellCall{"ShellExecuteW", Utf8(verb), Utf8(program), Utf8(parameters), show});
        return kStarted;
      });
  return reinterpret_cast<HINSTANCE>(static_cast<INT_PTR>(result));
}

UINT WINAPI HookWinExec(LPCSTR command_line, UINT show) {
  return WindowsCrossing(
      "WinExec", DescribeArgument(command_line), UINT{kFileNotFound}, [&](const Call& call) {
        if (command_line == nullptr) call.Fail("null command line");
        call.host.events.Add(
            ShellCall{"WinExec", "", FromAnsi(command_line), "", static_cast<int>(show)});
        return UINT{kStarted};
      });
}

}  // namespace

HookRows ShellHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(MessageBoxW)>("MessageBoxW", &HookMessageBoxW),
      HookRow<decltype(ShellExecuteW)>("ShellExecuteW", &HookShellExecuteW),
      HookRow<decltype(WinExec)>("WinExec", &HookWinExec),
  };
  return kRows;
}

}  // namespace wb
