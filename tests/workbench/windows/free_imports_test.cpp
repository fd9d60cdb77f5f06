// Which of Windows' functions the plug-in calls without the workbench seeing it: those listed here,
// and no other.
#include <iterator>
#include <set>
#include <sstream>

#include "tests/plugin_host.h"
#include "workbench/base/windows_headers.h"
#include "workbench/host/windows_calls.h"

namespace wb {
namespace {

// Gives something back, or cannot fail in a way that anybody could tell of.
constexpr const char* kHarmless =
    "CloseHandle CoUninitialize FindClose GetACP GetActiveWindow GetCurrentProcessId "
    "GetLastError GetLocalTime GlobalFree GlobalUnlock LocalFree MultiByteToWideChar "
    "QueryPerformanceCounter QueryPerformanceFrequency SysFreeString SysStringLen "
    "VariantClear VariantInit WideCharToMultiByte rand srand";

// Of the run-time library: threads, exceptions, the clock.
constexpr const char* kOfTheRunTime =
    "AddVectoredExceptionHandler CreateEventA CreateSemaphoreA DeleteCriticalSection "
    "DuplicateHandle EnterCriticalSection FileTimeToSystemTime FormatMessageA FormatMessageW "
    "GetCurrentProcess GetCurrentThread GetCurrentThreadId GetHandleInformation "
    "GetModuleHandleA GetProcessAffinityMask GetProcessTimes GetSystemTimeAdjustment "
    "GetSystemTimeAsFileTime GetThreadContext GetThreadPriority GetThreadTimes "
    "InitializeCriticalSection IsDBCSLeadByteEx IsDebuggerPresent LeaveCriticalSection "
    "LoadLibraryW MoveFileExA OpenProcess OutputDebugStringA RaiseException ReleaseSemaphore "
    "RemoveVectoredExceptionHandler ResetEvent ResumeThread RtlCaptureContext "
    "RtlLookupFunctionEntry RtlUnwindEx RtlVirtualUnwind SetEvent SetLastError "
    "SetProcessAffinityMask SetSystemTime SetThreadContext SetThreadPriority SuspendThread "
    "TlsAlloc TlsGetValue TlsSetValue TryEnterCriticalSection VirtualProtect VirtualQuery "
    "WaitForMultipleObjects WaitForSingleObject __C_specific_handler";

// Of the run-time library: texts, memory blocks, streams of its own.
constexpr const char* kOfTheCLibrary =
    "___lc_codepage_func ___mb_cur_max_func __iob_func __setusermatherr _amsg_exit _assert "
    "_beginthreadex _close _endthreadex _errno _fdopen _fileno _fstat64 _initterm _lock "
    "_lseeki64 _msize _read _setjmp _strdup _ultoa _unlock _write abort exit fflush fopen "
    "fprintf fputc fputwc free fwprintf fwrite iswctype localeconv longjmp mbstowcs memchr "
    "memcmp memcpy memmove memset printf setlocale setvbuf signal strcmp strcoll strerror "
    "strftime strlen strncmp strxfrm towlower towupper vfprintf wcscat wcscoll wcsftime "
    "wcslen wcstol wcstombs wcsxfrm";

std::set<std::string> FreeImports() {
  std::istringstream names(std::string(kHarmless) + " " + kOfTheRunTime + " " + kOfTheCLibrary);
  return {std::istream_iterator<std::string>(names), {}};
}

// A new import gets a stand-in in workbench/windows or, with a reason, its name here.
TEST_F(PluginHost, EveryImportOfThePluginIsACrossingOrDeliberatelyFree) {
  const Plugin plugin(Installed().dll());
  const HMODULE module = ::GetModuleHandleW(Installed().dll().filename().c_str());
  ASSERT_NE(module, nullptr);
  const Interception seen = InterceptImports(module);
  const std::set<std::string> free = FreeImports();
  Lines unseen = seen.left;
  std::erase_if(unseen, [&](const std::string& name) { return free.contains(name); });
  EXPECT_EQ(unseen, Lines());
  EXPECT_EQ(seen.by_ordinal, Lines());
  EXPECT_FALSE(seen.replaced.empty());
}

}  // namespace
}  // namespace wb
