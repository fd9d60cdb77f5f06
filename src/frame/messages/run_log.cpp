// The run log's file, and the lines of a command kept back until it ends.
#include "frame/messages/run_log.h"

#include <windows.h>

#include <shlobj.h>

#include <cstdio>
#include <exception>

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
  if (std::uncaught_exceptions() > 0) status_ = PRO_TK_GENERAL_ERROR;
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
  if (failures_ > 0) line += ", " + std::to_string(failures_) + " failures passed over";
  if (failures_ > kMaxFailureLines) line += " (only the first 1000 listed)";
  return line;
}

}  // namespace qm
