// Calls into the plug-in, and the last words when one of them takes the process down.
#include "workbench/plugin/plugin_entry.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <functional>

#include "workbench/base/windows_headers.h"
#include "workbench/host/call.h"

namespace wb {
namespace {

// What the plug-in is running now; texts of the callers further up the stack.
const char* running_entry = "no entry";
void (*tell_the_rest)() = nullptr;

class NamedEntry {
 public:
  explicit NamedEntry(const char* name) : before_(running_entry) { running_entry = name; }
  ~NamedEntry() { running_entry = before_; }
  NamedEntry(const NamedEntry&) = delete;
  NamedEntry& operator=(const NamedEntry&) = delete;

 private:
  const char* before_;
};

// "quillmax5.1C3.dll+0x1234"; no allocation, since the heap may be the thing that broke.
void DescribeAddress(const void* address, char* text, size_t size) {
  HMODULE module = nullptr;
  char path[MAX_PATH] = {};
  constexpr DWORD kFlags =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  const bool is_known = ::GetModuleHandleExA(kFlags, static_cast<LPCSTR>(address), &module);
  // For no address at all Windows names the program.
  if (!is_known || std::less<const void*>()(address, module)) {
    std::snprintf(text, size, "%p (in no module)", address);
    return;
  }
  ::GetModuleFileNameA(module, path, MAX_PATH - 1);
  const char* const slash = std::strrchr(path, '\\');
  const auto offset = static_cast<unsigned long long>(static_cast<const char*>(address) -
                                                      reinterpret_cast<const char*>(module));
  std::snprintf(text, size, "%s+0x%llx", slash == nullptr ? path : slash + 1, offset);
}

[[noreturn]] void SayLastWords(const char* what, const char* place) {
  std::fprintf(stderr, "plug-in %s in %s%s%s, last host call %s\n", what, running_entry,
               *place == '\0' ? "" : " at ", place, HasHost() ? TheHost().trace.last() : "none");
  std::fflush(stderr);
  if (tell_the_rest != nullptr) tell_the_rest();
  std::fflush(stdout);
  ::TerminateProcess(::GetCurrentProcess(), kCrashExitCode);
  for (;;) ::Sleep(INFINITE);
}

// The crash is told from a thread of its own: the one that crashed may have no stack left.
struct CrashReport {
  HANDLE wanted = nullptr;
  const EXCEPTION_RECORD* exception = nullptr;
} crash_report;

DWORD WINAPI TellCrash(void*) {
  ::WaitForSingleObject(crash_report.wanted, INFINITE);
  char place[MAX_PATH + 32] = {};
  DescribeAddress(crash_report.exception->ExceptionAddress, place, sizeof(place));
  const bool stack = crash_report.exception->ExceptionCode == EXCEPTION_STACK_OVERFLOW;
  SayLastWords(stack ? "ran out of stack" : "crashed", place);
}

LONG WINAPI OnUnhandled(EXCEPTION_POINTERS* exception) {
  crash_report.exception = exception->ExceptionRecord;
  ::SetEvent(crash_report.wanted);
  for (;;) ::Sleep(INFINITE);
}

void OnAbort(int) {
  SayLastWords("aborted", "");
}

}  // namespace

void AfterLastWords(void (*tell)()) {
  tell_the_rest = tell;
}

void EnterPlugin(const std::string& what, const std::function<void()>& call) {
  const NamedEntry named(what.c_str());
  try {
    call();
  } catch (...) {
    CaughtInCrossing(TheHost(), what.c_str());
  }
}

void EnterPluginAndSettle(const std::string& what, const std::function<void()>& call) {
  Host& host = TheHost();
  const long before = host.trace.calls();
  EnterPlugin(what, call);
  for (const std::string& left : host.accounts.Describe(before)) {
    host.ReportBreach(what, "left out " + left);
  }
  ReportLeftPrograms(before);
}

void ReportLeftPrograms(long before) {
  Host& host = TheHost();
  if (host.automation == nullptr) return;
  for (const std::string& left : host.automation->Settle(before)) {
    host.ReportBreach("Excel", left);
  }
}

void ReportCrashes() {
  if (crash_report.wanted != nullptr) return;
  crash_report.wanted = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
  ::CloseHandle(::CreateThread(nullptr, 0, &TellCrash, nullptr, 0, nullptr));
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
  ::SetUnhandledExceptionFilter(&OnUnhandled);
  std::signal(SIGABRT, &OnAbort);
}

}  // namespace wb
