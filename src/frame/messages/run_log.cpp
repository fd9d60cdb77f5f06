// The run log's file, and the lines of a command kept back until it ends.
#include "frame/messages/run_log.h"

#include <windows.h>

#include <shlobj.h>

#include <cstdio>
#include <exception>
#include <iterator>

#include "frame/text/fixed_text.h"
#include "frame/text/text.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr long long kMaxFileBytes = 1024LL * 1024;
constexpr std::size_t kMaxPendingBytes = std::size_t{16} * 1024;
constexpr long long kMaxFailureLines = 1000;

constinit CommandLog* running_command = nullptr;

// Path of `file` in the log's folder, which is made when it is missing; empty without a folder.
std::wstring LogPath(const wchar_t* file) {
  wchar_t folder[MAX_PATH] = {};
  if (FAILED(::SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0,
                                folder))) {
    return {};
  }
  const std::wstring log_folder = std::wstring(folder) + L"\\Quillmax";
  ::CreateDirectoryW(log_folder.c_str(), nullptr);
  return log_folder + L"\\" + file;
}

HANDLE OpenToAppend(const std::wstring& path) {
  return ::CreateFileW(path.c_str(), FILE_APPEND_DATA | FILE_READ_ATTRIBUTES,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

// The log file, opened so that `bytes` more fit below its bound.
HANDLE OpenWithRoomFor(std::size_t bytes) {
  const std::wstring path = LogPath(L"quillmax.log");
  if (path.empty()) return INVALID_HANDLE_VALUE;
  const HANDLE file = OpenToAppend(path);
  LARGE_INTEGER size = {};
  if (file == INVALID_HANDLE_VALUE || !::GetFileSizeEx(file, &size)) return file;
  if (size.QuadPart + static_cast<long long>(bytes) <= kMaxFileBytes) return file;
  ::CloseHandle(file);
  ::MoveFileExW(path.c_str(), LogPath(L"quillmax.old.log").c_str(), MOVEFILE_REPLACE_EXISTING);
  return OpenToAppend(path);
}

void WriteLines(const std::string& lines) {
  if (lines.empty()) return;
  const HANDLE file = OpenWithRoomFor(lines.size());
  if (file == INVALID_HANDLE_VALUE) return;
  DWORD written = 0;
  ::WriteFile(file, lines.data(), static_cast<DWORD>(lines.size()), &written, nullptr);
  ::CloseHandle(file);
}

std::string Stamped(std::string_view text) {
  SYSTEMTIME now;
  ::GetLocalTime(&now);
  char stamp[64];
  std::snprintf(stamp, sizeof(stamp), "%04d-%02d-%02d %02d:%02d:%02d.%03d  ", now.wYear, now.wMonth,
                now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds);
  std::string line = stamp;
  line += text;
  line += "\r\n";
  return line;
}

std::string LoggedName(ProMdl model) {
  ProName name = {};
  if (model == nullptr || !Ok(ProMdlNameGet(model, name))) return "(model without name)";
  return ToUtf8(FixedText(name));
}

}  // namespace

void LogEvent(std::string_view text) noexcept {
  try {
    if (running_command != nullptr) {
      running_command->AddLine(text);
    } else {
      WriteLines(Stamped(text));
    }
  } catch (...) {
    // A line that cannot be logged is lost; the command goes on.
  }
}

// False when the running command has listed enough of them.
bool CountFailure() noexcept {
  return running_command == nullptr || ++running_command->failures_ <= kMaxFailureLines;
}

void LogFailure(ProMdl model, const char* function, ProError status) noexcept {
  if (!CountFailure()) return;
  try {
    // A handle that the host has just refused may be stale: nothing more is asked with it.
    const ProMdl named = status == PRO_TK_BAD_INPUTS ? nullptr : model;
    LogEvent(LoggedName(named) + ": " + function + " answered " + StatusName(status));
  } catch (...) {
    // As above; the failure stays counted.
  }
}

void LogFailure(std::wstring_view model_name, const char* function, ProError status) noexcept {
  if (!CountFailure()) return;
  try {
    LogEvent(ToUtf8(model_name) + ": " + function + " answered " + StatusName(status));
  } catch (...) {
    // As above.
  }
}

void LogLeftOut(const ProFeature& component, const char* function, ProError status) noexcept {
  if (!CountFailure()) return;
  try {
    const ProMdl owner = status == PRO_TK_BAD_INPUTS ? nullptr : component.owner;
    LogEvent(LoggedName(owner) + ", component " + std::to_string(component.id) +
             " left out: " + function + " answered " + StatusName(status));
  } catch (...) {
    // As above.
  }
}

void LogOutcome(const char* what) noexcept {
  if (running_command != nullptr) running_command->outcome_ = what;
}

void LogBox(const wchar_t* text) noexcept {
  if (running_command == nullptr) return;
  wchar_t* place = running_command->box_;
  const wchar_t* const end = std::end(running_command->box_) - 1;
  // On one line, without the tabs around it.
  while (*text == L'\t') ++text;
  for (; *text != L'\0' && place != end; ++text) {
    if (*text != L'\t') *place++ = *text == L'\n' ? L' ' : *text;
  }
  *place = L'\0';
}

void LogLeftOutCount(long long count) noexcept {
  if (running_command != nullptr) running_command->left_out_ += count;
}

void LogCount(const char* what, long long count) noexcept {
  if (running_command == nullptr) return;
  try {
    running_command->counts_ += ", " + std::to_string(count) + " " + what;
  } catch (...) {
    // As above.
  }
}

CommandLog::CommandLog(const char* name) noexcept
    : name_(name), outer_(running_command), start_(std::chrono::steady_clock::now()) {
  running_command = this;
}

CommandLog::~CommandLog() {
  running_command = outer_;
  if (std::uncaught_exceptions() > 0) {
    status_ = PRO_TK_GENERAL_ERROR;
    stopped_ = true;
  }
  try {
    pending_ += Stamped(ClosingLine());
    WriteLines(pending_);
  } catch (...) {
    // As above.
  }
}

void CommandLog::AddLine(std::string_view text) {
  pending_ += Stamped(std::string(name_) + ": " + std::string(text));
  if (pending_.size() < kMaxPendingBytes) return;
  WriteLines(pending_);
  pending_.clear();
}

std::string CommandLog::ClosingLine() const {
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start_;
  char seconds[32];
  std::snprintf(seconds, sizeof(seconds), "%.3f", elapsed.count());
  std::string line = std::string(name_) + " ended with " + StatusName(status_) + " after " +
                     seconds + " s" + counts_;
  if (left_out_ > 0) line += ", " + std::to_string(left_out_) + " left out";
  if (failures_ > 0) line += ", " + std::to_string(failures_) + " failures passed over";
  if (failures_ > kMaxFailureLines) line += " (only the first 1000 listed)";
  return line + ": " + Outcome();
}

// What came of the command. Its status alone does not tell: many refusals are no errors to the
// host.
std::string CommandLog::Outcome() const {
  if (stopped_) return "stopped by an internal error";
  if (outcome_ != nullptr) return outcome_;
  if (box_[0] != L'\0') return "told \"" + ToUtf8(box_) + "\"";
  if (status_ == PRO_TK_USER_ABORT) return "cancelled";
  if (!Ok(status_)) return "failed";
  return left_out_ > 0 ? "done in part" : "done";
}

}  // namespace qm
