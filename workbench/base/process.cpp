// The watch is a second process that waits for a pipe of the first one to end.
#include "workbench/base/process.h"

#include <utility>

#if defined(_WIN32)
#include "workbench/base/windows_headers.h"
#else
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#endif

namespace wb {

#if defined(_WIN32)

long OwnProcessId() {
  return static_cast<long>(::GetCurrentProcessId());
}

bool ProcessRuns(long id) {
  const HANDLE handle = ::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(id));
  if (handle == nullptr) return false;
  const bool runs = ::WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
  ::CloseHandle(handle);
  return runs;
}

Watch::Watch(std::function<void()> clean_up) : clean_up_(std::move(clean_up)) {}

Watch::~Watch() {
  clean_up_();
}

#else

namespace {

// In a session of its own, so that what ends a whole group of processes spares it, and without our
// files, so that nobody waits for it to close them.
[[noreturn]] void WaitAndCleanUp(int pipe, const std::function<void()>& clean_up) {
  ::setsid();
  ::dup2(pipe, 0);
  ::close_range(1, ~0U, 0);
  char byte = 0;
  while (::read(0, &byte, 1) < 0 && errno == EINTR) {
  }
  clean_up();
  ::_exit(0);
}

}  // namespace

long OwnProcessId() {
  return ::getpid();
}

bool ProcessRuns(long id) {
  return ::kill(static_cast<pid_t>(id), 0) == 0 || errno == EPERM;
}

Watch::Watch(std::function<void()> clean_up) : clean_up_(std::move(clean_up)) {
  int ends[2] = {-1, -1};
  if (::pipe2(ends, O_CLOEXEC) != 0) return;
  watchman_ = ::fork();
  if (watchman_ == 0) WaitAndCleanUp(ends[0], clean_up_);
  ::close(ends[0]);
  lifeline_ = ends[1];
}

Watch::~Watch() {
  clean_up_();
  if (lifeline_ >= 0) ::close(lifeline_);
  if (watchman_ > 0) ::waitpid(static_cast<pid_t>(watchman_), nullptr, 0);
}

#endif

}  // namespace wb
