// One-shot timer that restores the last working directory.
#include "entry/restore_directory.h"

#include <windows.h>

#include <cstdio>
#include <memory>
#include <string>

#include "frame/guard/shield.h"
#include "frame/messages/run_log.h"
#include "frame/settings/config.h"
#include "frame/text/fixed_text.h"
#include "frame/text/list_rules.h"
#include "frame/text/text.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr UINT_PTR kTimerId = 1;
constexpr UINT kDelayMilliseconds = 2000;

// A timer without a window gets another id than the one asked for.
constinit UINT_PTR pending_timer = 0;

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

// All bytes of the file; empty when it is missing or cannot be read.
std::string FileBytes(const std::wstring& path) {
  std::string bytes;
  const std::unique_ptr<std::FILE, FileCloser> file(::_wfopen(path.c_str(), L"rb"));
  if (file == nullptr) return bytes;
  char buffer[1024];
  while (const std::size_t count = std::fread(buffer, 1, sizeof(buffer), file.get())) {
    bytes.append(buffer, count);
  }
  return bytes;
}

void RestoreLastDirectory() {
  const std::wstring setting =
      WithoutBlanks(ReadSetting(L"SetLastDir", kValueKey, ConfigPath(kConfigFile)));
  if (setting != L"1") return;
  const std::string bytes = FileBytes(ConfigPath(kLastDirectoryFile));
  // The text ends at the first zero, as any C text does.
  const std::wstring folder = FromAnsi(bytes.c_str());
  ProPath path = {};
  if (folder.empty() || !FillFixedText(folder, path)) return;
  const ProError status = ProDirectoryChange(path);
  if (!Ok(status)) LogEvent("last working directory not restored: " + ToUtf8(folder));
}

void OnTimer(HWND, UINT, UINT_PTR timer, DWORD) {
  ::KillTimer(nullptr, timer);
  // A message that was under way when its timer was stopped.
  if (timer != pending_timer) return;
  pending_timer = 0;
  RestoreLastDirectory();
}

}  // namespace

void StartDirectoryRestore() {
  StopDirectoryRestore();
  pending_timer = ::SetTimer(nullptr, kTimerId, kDelayMilliseconds, &Shielded<&OnTimer>::Call);
}

void StopDirectoryRestore() {
  if (pending_timer == 0) return;
  ::KillTimer(nullptr, pending_timer);
  pending_timer = 0;
}

}  // namespace qm
