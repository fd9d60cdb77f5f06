// A plug-in that makes each of the Windows calls the workbench intercepts, a command a call.
#include <windows.h>

#include <commdlg.h>
#include <objbase.h>
#include <oleauto.h>
#include <shellapi.h>
#include <shlobj.h>

#include "tests/workbench/plugin/small_plugin.h"

namespace {

int Box() {
  return ::MessageBoxW(nullptr, L"Delete all?", L"Caption", MB_YESNO);
}

// Runs it on a thread of its own and waits for its end.
bool RunOnThread(LPTHREAD_START_ROUTINE run, void* data = nullptr) {
  const HANDLE thread = ::CreateThread(nullptr, 0, run, data, 0, nullptr);
  if (thread == nullptr) return false;
  ::WaitForSingleObject(thread, INFINITE);
  ::CloseHandle(thread);
  return true;
}

DWORD WINAPI BoxOnThread(void* answer) {
  *static_cast<int*>(answer) = Box();
  return 0;
}

int ThreadBox() {
  int answer = 0;
  RunOnThread(&BoxOnThread, &answer);
  return answer;
}

int Explorer() {
  const HINSTANCE result =
      ::ShellExecuteW(nullptr, nullptr, L"explorer", L"C:\\", nullptr, SW_SHOW);
  return static_cast<int>(reinterpret_cast<INT_PTR>(result));
}

int Notepad() {
  return static_cast<int>(::WinExec("notepad.exe list.ini", SW_SHOW));
}

void CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD) {
  ::KillTimer(nullptr, timer);
  wchar_t file[] = L"menu.txt";
  ProMessageDisplay(file, "Label");
}

int Timer() {
  return ::SetTimer(nullptr, 1, 2000, &OnTimer) == 0;
}

int NumberByValue() {
  wchar_t file[] = L"menu.txt";
  wchar_t path[] = L"C:";
  double size = 2.5;
  return ProMessageDisplay(file, "Moved %0w", path, "here", 1, &size);
}

int Desktop() {
  wchar_t path[MAX_PATH] = {};
  return ::SHGetSpecialFolderPathW(nullptr, path, CSIDL_DESKTOP, FALSE);
}

int LocalFolder() {
  wchar_t path[MAX_PATH] = {};
  return SUCCEEDED(
      ::SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, path));
}

template <decltype(::GetSaveFileNameW)* Ask>
int AskForFile() {
  wchar_t path[MAX_PATH] = {};
  OPENFILENAMEW dialog = {};
  dialog.lStructSize = sizeof(dialog);
  dialog.lpstrFile = path;
  dialog.nMaxFile = MAX_PATH;
  return Ask(&dialog);
}

int Object() {
  void* object = nullptr;
  return ::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC, IID_IUnknown, &object);
}

// Starts the spreadsheet program and lets go of it without ending it.
int Spreadsheet() {
  CLSID class_id;
  HRESULT result = ::CLSIDFromProgID(L"Excel.Application", &class_id);
  if (FAILED(result)) return result;
  void* object = nullptr;
  result = ::CoCreateInstance(class_id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch, &object);
  if (SUCCEEDED(result)) static_cast<IUnknown*>(object)->Release();
  return result;
}

DWORD WINAPI MiddleClick(void*) {
  ::mouse_event(MOUSEEVENTF_MIDDLEDOWN | MOUSEEVENTF_MIDDLEUP, 0, 0, 0, 0);
  return 0;
}

int ThreadClick() {
  return !RunOnThread(&MiddleClick);
}

DWORD WINAPI CallHost(void*) {
  ProMdl model = nullptr;
  return static_cast<DWORD>(ProMdlCurrentGet(&model));
}

// Lets it run on.
int LeftThread() {
  const HANDLE thread = ::CreateThread(nullptr, 0, &CallHost, nullptr, CREATE_SUSPENDED, nullptr);
  return thread == nullptr;
}

int LastErrorUnless(bool succeeded) {
  return succeeded ? 0 : static_cast<int>(::GetLastError());
}

int OpenFile() {
  const HANDLE file = ::CreateFileW(L"NUL", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  const int error = LastErrorUnless(file != INVALID_HANDLE_VALUE);
  if (error == 0) ::CloseHandle(file);
  return error;
}

int DeleteNothing() {
  return LastErrorUnless(::DeleteFileW(L"C:\\nothing here"));
}

int LookAtFile() {
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  return LastErrorUnless(::GetFileAttributesExW(L"C:\\", GetFileExInfoStandard, &data));
}

int OpenAndCloseClipboard() {
  const int error = LastErrorUnless(::OpenClipboard(nullptr));
  if (error == 0) ::CloseClipboard();
  return error;
}

int CurrentFolder() {
  return LastErrorUnless(::GetCurrentDirectoryW(0, nullptr) != 0);
}

int OwnFile() {
  wchar_t path[MAX_PATH] = {};
  return LastErrorUnless(::GetModuleFileNameW(nullptr, path, MAX_PATH) != 0);
}

int ComText() {
  const BSTR text = ::SysAllocStringLen(L"text", 4);
  ::SysFreeString(text);
  return text == nullptr;
}

int ComStart() {
  const HRESULT result = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  if (FAILED(result)) return result;
  ::CoUninitialize();
  return 0;
}

}  // namespace

void RegisterCommands() {
  Register<&Box>("Box");
  Register<&ThreadBox>("ThreadBox");
  Register<&Explorer>("Explorer");
  Register<&Notepad>("Notepad");
  Register<&Timer>("Timer");
  Register<&Desktop>("Desktop");
  Register<&LocalFolder>("LocalFolder");
  Register<&AskForFile<&::GetOpenFileNameW>>("OpenFile");
  Register<&AskForFile<&::GetSaveFileNameW>>("SaveFile");
  Register<&Object>("Object");
  Register<&Spreadsheet>("Spreadsheet");
  Register<&ThreadClick>("ThreadClick");
  Register<&LeftThread>("LeftThread");
  Register<&NumberByValue>("NumberByValue");
  Register<&OpenFile>("OpenNul");
  Register<&DeleteNothing>("DeleteNothing");
  Register<&LookAtFile>("LookAtFile");
  Register<&OpenAndCloseClipboard>("OpenClipboard");
  Register<&CurrentFolder>("CurrentFolder");
  Register<&OwnFile>("OwnFile");
  Register<&ComText>("ComText");
  Register<&ComStart>("ComStart");
}
