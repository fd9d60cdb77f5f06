// The stand-ins: boxes and file dialogs are answered by the user of the workbench, programs are
// not started, timers wait until they are fired, known folders lie where the run wants them.
#include "workbench/windows/windows_hooks.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <iterator>

#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"

#include <cderr.h>
#include <commdlg.h>
#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

namespace wb {
namespace {

std::string Utf8(const wchar_t* text) {
  return text == nullptr ? "" : FromWide(text);
}

// ShellExecute and WinExec answer a number above 32 when they have started the program.
constexpr int kStarted = 33;
constexpr int kFileNotFound = 2;

int WINAPI HookMessageBoxW(HWND, LPCWSTR text, LPCWSTR caption, UINT style) {
  const MessageBox box{Utf8(caption), Utf8(text), style};
  return WindowsCrossing("MessageBoxW", DescribeArgument(text), 0, [&](const Call& call) {
    // The user cannot be asked from elsewhere: he may be at work on the interface's own thread.
    if (!call.host.OnUiThread()) return IDOK;
    call.host.events.Add(box);
    return call.host.user == nullptr ? IDOK : call.host.user->AnswerMessageBox(box);
  });
}

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

void WINAPI HookMouseEvent(DWORD flags, DWORD dx, DWORD dy, DWORD data, ULONG_PTR) {
  WindowsCrossing("mouse_event", std::to_string(flags), 0, [&](const Call& call) {
    call.host.events.Add(MouseEvent{static_cast<unsigned>(flags), static_cast<unsigned>(dx),
                                    static_cast<unsigned>(dy), static_cast<unsigned>(data)});
    return 0;
  });
}

auto TimerWithId(std::vector<Timer>& timers, UINT_PTR id) {
  return std::find_if(timers.begin(), timers.end(),
                      [&](const Timer& timer) { return timer.id == id; });
}

UINT_PTR WINAPI HookSetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
  return WindowsCrossing(
      "SetTimer", std::to_string(milliseconds), UINT_PTR{0}, [&](const Call& call) {
        if (window != nullptr) throw NotModelled{"a timer that belongs to a window"};
        if (procedure == nullptr) call.Fail("null timer procedure without a window");
        WindowsCalls& windows = call.host.windows;
        const auto same = TimerWithId(windows.timers, id);
        const UINT_PTR given = same == windows.timers.end() ? windows.next_timer++ : id;
        if (same != windows.timers.end()) windows.timers.erase(same);
        windows.timers.push_back({given, milliseconds, reinterpret_cast<void*>(procedure), false});
        return given;
      });
}

BOOL WINAPI HookKillTimer(HWND, UINT_PTR id) {
  bool reached = false;
  const BOOL killed =
      WindowsCrossing("KillTimer", std::to_string(id), BOOL{FALSE}, [&](const Call& call) {
        reached = true;
        std::vector<Timer>& timers = call.host.windows.timers;
        const auto timer = TimerWithId(timers, id);
        if (timer == timers.end()) call.Fail("there is no timer " + std::to_string(id));
        timers.erase(timer);
        return BOOL{TRUE};
      });
  std::vector<Timer>& timers = TheHost().windows.timers;
  const auto timer = TimerWithId(timers, id);
  if (!reached && timer != timers.end()) timer->kill_failed = true;
  return killed;
}

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

HRESULT WINAPI HookCLSIDFromProgID(LPCOLESTR program, LPCLSID class_id) {
  return WindowsCrossing("CLSIDFromProgID", DescribeArgument(program), HRESULT{CO_E_CLASSSTRING},
                         [&](const Call& call) {
                           const std::string name = call.Text(program, PRO_PATH_SIZE, "program id");
                           CLSID& place = call.Place(class_id, "class place");
                           AutomationProgram* const automation = call.host.automation;
                           if (automation == nullptr) return HRESULT{CO_E_CLASSSTRING};
                           return HRESULT{automation->ClassOf(name, &place)};
                         });
}

HRESULT WINAPI HookCoCreateInstance(REFCLSID class_id, LPUNKNOWN, DWORD, REFIID interface_id,
                                    LPVOID* object) {
  wchar_t text[40] = {};
  ::StringFromGUID2(class_id, text, std::size(text));
  return WindowsCrossing("CoCreateInstance", FromWide(text), HRESULT{REGDB_E_CLASSNOTREG},
                         [&](const Call& call) {
                           call.Place(object, "object place") = nullptr;
                           call.host.events.Add(ClassRequest{FromWide(text)});
                           AutomationProgram* const automation = call.host.automation;
                           if (automation == nullptr) return HRESULT{REGDB_E_CLASSNOTREG};
                           return HRESULT{automation->Start(&class_id, &interface_id, object)};
                         });
}

// "All files\0*.*\0\0" as "All files|*.*".
std::string FilterText(const wchar_t* filter) {
  std::vector<std::string> pieces;
  while (filter != nullptr && *filter != L'\0') {
    pieces.push_back(FromWide(filter));
    filter += wcslen(filter) + 1;
  }
  return Join("|", pieces);
}

FileRequest RequestOf(const char* function, const OPENFILENAMEW& dialog) {
  return {function,
          Utf8(dialog.lpstrTitle),
          FilterText(dialog.lpstrFilter),
          Utf8(dialog.lpstrInitialDir),
          Utf8(dialog.lpstrDefExt),
          static_cast<unsigned>(dialog.Flags)};
}

// Puts the user's choice where the caller wants it, with the default extension where it has none.
void FillIn(const Call& call, OPENFILENAMEW& dialog, const std::string& choice) {
  std::filesystem::path path = PathFromUtf8(choice);
  const std::string extension = Utf8(dialog.lpstrDefExt);
  if (!path.has_extension() && !extension.empty()) path += PathFromUtf8("." + extension);
  const std::wstring text = ToWide(PathToUtf8(path));
  if (text.size() >= dialog.nMaxFile) {
    call.Fail("a buffer of " + std::to_string(dialog.nMaxFile) + " characters for a file of " +
              std::to_string(text.size()));
  }
  call.CopyText(dialog.lpstrFile, dialog.nMaxFile, PathToUtf8(path));
  dialog.nFileOffset = static_cast<WORD>(text.find_last_of(L"\\/") + 1);
  const size_t dot = text.rfind(L'.');
  dialog.nFileExtension =
      dot == std::wstring::npos || dot < dialog.nFileOffset ? WORD{0} : static_cast<WORD>(dot + 1);
}

std::optional<std::string> Choice(const Call& call, const char* function,
                                  const OPENFILENAMEW& dialog) {
  if (dialog.lStructSize != sizeof(OPENFILENAMEW)) call.Fail("wrong structure size");
  if (dialog.lpstrFile == nullptr) call.Fail("null file buffer");
  const FileRequest request = RequestOf(function, dialog);
  call.host.events.Add(request);
  return call.host.user == nullptr ? std::nullopt : call.host.user->ChooseFile(request);
}

// The dialogs themselves answer a failure and a cancelled choice alike.
BOOL AskForFile(const char* function, OPENFILENAMEW* dialog) {
  TheHost().windows.dialog_error = CDERR_DIALOGFAILURE;
  const std::string arguments = dialog == nullptr ? "null" : DescribeArgument(dialog->lpstrTitle);
  return WindowsCrossing(function, arguments, BOOL{FALSE}, [&](const Call& call) {
    OPENFILENAMEW& place = call.Place(dialog, "dialog structure");
    const std::optional<std::string> choice = Choice(call, function, place);
    call.host.windows.dialog_error = 0;
    if (!choice) return BOOL{FALSE};
    FillIn(call, place, *choice);
    return BOOL{TRUE};
  });
}

BOOL WINAPI HookGetOpenFileNameW(LPOPENFILENAMEW dialog) {
  return AskForFile("GetOpenFileNameW", dialog);
}

BOOL WINAPI HookGetSaveFileNameW(LPOPENFILENAMEW dialog) {
  return AskForFile("GetSaveFileNameW", dialog);
}

DWORD WINAPI HookCommDlgExtendedError() {
  return TheHost().windows.dialog_error;
}

// A pause on the user-interface thread only moves the time on that the plug-in is told.
void WINAPI HookSleep(DWORD milliseconds) {
  if (!HasHost() || !TheHost().OnUiThread()) return ::Sleep(milliseconds);
  WindowsCalls& windows = TheHost().windows;
  windows.slept_ms += milliseconds;
  if (windows.in_pause) windows.in_pause();
}

ULONGLONG WINAPI HookGetTickCount64() {
  const bool slept = HasHost() && TheHost().OnUiThread();
  return ::GetTickCount64() + (slept ? TheHost().windows.slept_ms : 0);
}

// A function of the host that the workbench does not have, or withholds in this run, is named: the
// plug-in only sees that it is missing.
FARPROC WINAPI HookGetProcAddress(HMODULE module, LPCSTR name) {
  const FARPROC found = ::GetProcAddress(module, name);
  if (!HasHost() || module != ::GetModuleHandleW(nullptr) || IS_INTRESOURCE(name)) return found;
  std::string function = name;
  const std::string suffix = QM_HOST_NAME_SUFFIX;
  if (function.ends_with(suffix)) function.resize(function.size() - suffix.size());
  if (TheHost().windows.withheld.contains(function)) return nullptr;
  if (found == nullptr) {
    TheHost().events.Add(Gap{"workbench: not modelled: " + function});
  }
  return found;
}

template <typename Function>
Hook Row(const char* name, Function* replacement, bool is_crossing = true) {
  return {name, reinterpret_cast<void*>(replacement), is_crossing};
}

}  // namespace

std::span<const Hook> Hooks() {
  static const Hook kHooks[] = {
      Row("MessageBoxW", &HookMessageBoxW),
      Row("ShellExecuteW", &HookShellExecuteW),
      Row("WinExec", &HookWinExec),
      Row("mouse_event", &HookMouseEvent),
      Row("SetTimer", &HookSetTimer),
      Row("KillTimer", &HookKillTimer),
      Row("SHGetFolderPathW", &HookSHGetFolderPathW),
      Row("SHGetSpecialFolderPathW", &HookSHGetSpecialFolderPathW),
      Row("CLSIDFromProgID", &HookCLSIDFromProgID),
      Row("CoCreateInstance", &HookCoCreateInstance),
      Row("GetOpenFileNameW", &HookGetOpenFileNameW),
      Row("GetSaveFileNameW", &HookGetSaveFileNameW),
      Row("CommDlgExtendedError", &HookCommDlgExtendedError, false),
      Row("Sleep", &HookSleep, false),
      Row("GetTickCount64", &HookGetTickCount64, false),
      Row("GetProcAddress", &HookGetProcAddress, false),
  };
  return kHooks;
}

bool IsMetFunction(const char* name) {
  const std::string versioned = std::string(name) + QM_HOST_NAME_SUFFIX;
  if (::GetProcAddress(::GetModuleHandleW(nullptr), versioned.c_str()) != nullptr) return true;
  const std::span<const Hook> hooks = Hooks();
  return std::any_of(hooks.begin(), hooks.end(), [&](const Hook& hook) {
    return hook.is_crossing && std::strcmp(hook.name, name) == 0;
  });
}

}  // namespace wb
