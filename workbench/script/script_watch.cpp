// The hang watch of the script runner.
#include "workbench/script/script_watch.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstring>

#include "workbench/base/windows_headers.h"

namespace wb {
namespace {

constexpr unsigned kHangExitCode = 3;
constexpr DWORD kLookMilliseconds = 1000;

// Fixed memory: read by the other thread.
char noted_place[512] = "(before the first statement)";
std::atomic<unsigned> notes = 0;
unsigned most_seconds = 0;

DWORD WINAPI LookForHangs(void*) {
  unsigned last = notes;
  for (unsigned quiet = 0; quiet < most_seconds; ++quiet) {
    ::Sleep(kLookMilliseconds);
    if (last != notes) quiet = 0;
    last = notes;
  }
  std::printf("%s: nothing has happened for %u s: the plug-in hangs\n0 passed, 1 failed\n",
              noted_place, most_seconds);
  std::fflush(stdout);
  ::TerminateProcess(::GetCurrentProcess(), kHangExitCode);
  return 0;
}

}  // namespace

void NotePlace(const std::string& place) {
  const size_t length = std::min(place.size(), sizeof(noted_place) - 1);
  std::memcpy(noted_place, place.data(), length);
  noted_place[length] = '\0';
  ++notes;
}

void WatchForHangs(unsigned seconds) {
  most_seconds = seconds;
  const HANDLE thread = ::CreateThread(nullptr, 0, &LookForHangs, nullptr, 0, nullptr);
  if (thread != nullptr) ::CloseHandle(thread);
}

}  // namespace wb
