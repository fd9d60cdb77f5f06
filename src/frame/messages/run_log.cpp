// The run log's file, and the lines of a command kept back until it ends.
#include "frame/messages/run_log.h"

#include <windows.h>

#include <shlobj.h>

#include <cwchar>
#include <exception>
#include <iterator>
#include <string>

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

// Lines that are not written yet, those of all running commands: the destructors and the shield's
// way out must be able to log when there is no memory left.
constinit FixedLine<kMaxPendingBytes> pending;

// The path of a file in the log's folder; empty when there is no such folder.
struct LogPath {
  explicit LogPath(const wchar_t* file);
  wchar_t path[MAX_PATH + 32] = {};
};

// The folder is made when it is missing.
LogPath::LogPath(const wchar_t* file) {
  if (FAILED(
          ::SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, path))) {
    path[0] = L'\0';
    return;
  }
  std::wcscat(path, L"\\Quillmax");
  ::CreateDirectoryW(path, nullptr);
  std::wcscat(path, file);
}

HANDLE OpenToAppend(const LogPath& file) {
  return ::CreateFileW(file.path, FILE_APPEND_DATA | FILE_READ_ATTRIBUTES,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

// The log file, opened so that `bytes` more fit below its bound.
HANDLE OpenWithRoomFor(std::size_t bytes) {
  const LogPath log(L"\\quillmax.log");
  if (log.path[0] == L'\0') return INVALID_HANDLE_VALUE;
  const HANDLE file = OpenToAppend(log);
  LARGE_INTEGER size = {};
  if (file == INVALID_HANDLE_VALUE || !::GetFileSizeEx(file, &size)) return file;
  if (size.QuadPart + static_cast<long long>(bytes) <= kMaxFileBytes) return file;
  ::CloseHandle(file);
  ::MoveFileExW(log.path, LogPath(L"\\quillmax.old.log").path, MOVEFILE_REPLACE_EXISTING);
  return OpenToAppend(log);
}

void WriteLines(std::string_view lines) {
  if (lines.empty()) return;
  const HANDLE file = OpenWithRoomFor(lines.size());
  if (file == INVALID_HANDLE_VALUE) return;
  DWORD written = 0;
  ::WriteFile(file, lines.data(), static_cast<DWORD>(lines.size()), &written, nullptr);
  ::CloseHandle(file);
}

void WritePending() {
  WriteLines(pending.text());
  pending.clear();
}

// A text that no buffer could hold is written in parts.
void Add(std::string_view text) {
  if (text.size() > pending.room()) WritePending();
  if (text.size() > pending.room()) {
    WriteLines(text);
  } else {
    pending += text;
  }
}

using Stamp = FixedLine<32>;

Stamp StampOfNow() {
  SYSTEMTIME now;
  ::GetLocalTime(&now);
  Stamp stamp;
  stamp.AddNumber(now.wYear, 4) += "-";
  stamp.AddNumber(now.wMonth, 2) += "-";
  stamp.AddNumber(now.wDay, 2) += " ";
  stamp.AddNumber(now.wHour, 2) += ":";
  stamp.AddNumber(now.wMinute, 2) += ":";
  stamp.AddNumber(now.wSecond, 2) += ".";
  stamp.AddNumber(now.wMilliseconds, 3) += "  ";
  return stamp;
}

// A line of up to three pieces, all of it in one file where that can be.
void AddLine(std::string_view name, std::string_view separator, std::string_view text) {
  constexpr std::string_view kEnd = "\r\n";
  const Stamp stamp = StampOfNow();
  const std::string_view pieces[] = {stamp.text(), name, separator, text, kEnd};
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  if (size > pending.room()) WritePending();
  for (const std::string_view piece : pieces) Add(piece);
}

std::string LoggedName(ProMdl model) {
  ProName name = {};
  if (model == nullptr || !Ok(ProMdlNameGet(model, name))) return "(model without name)";
  return ToUtf8(FixedText(name));
}

}  // namespace

std::wstring RunLogFolder() {
  return LogPath(L"").path;
}

void LogEvent(std::string_view text) noexcept {
  if (running_command != nullptr) {
    AddLine(running_command->name_, ": ", text);
  } else {
    AddLine("", "", text);
    WritePending();
  }
}

// False when the running command has listed enough of them.
bool CountFailure() noexcept {
  return running_command == nullptr || ++running_command->failures_ <= kMaxFailureLines;
}

void LogFailure(std::string_view text) noexcept {
  if (CountFailure()) LogEvent(text);
}

void LogFailure(ProMdl model, const char* function, ProError status) noexcept {
  if (!CountFailure()) return;
  try {
    // A handle that the host has just refused may be stale: nothing more is asked with it.
    const ProMdl named = status == PRO_TK_BAD_INPUTS ? nullptr : model;
    LogEvent(LoggedName(named) + ": " + function + " answered " + StatusName(status));
  } catch (...) {
    // Without memory for the line the failure stays counted.
  }
}

void LogFailure(std::wstring_view model_name, const char* function, ProError status) noexcept {
  if (!CountFailure()) return;
  try {
    LogEvent(ToUtf8(model_name) + ": " + function + " answered " + StatusName(status));
  } catch (...) {
    // As for the one above.
  }
}

void LogLeftOut(const ProFeature& component, const char* function, ProError status) noexcept {
  if (!CountFailure()) return;
  try {
    const ProMdl owner = status == PRO_TK_BAD_INPUTS ? nullptr : component.owner;
    LogEvent(LoggedName(owner) + ", component " + std::to_string(component.id) +
             " left out: " + function + " answered " + StatusName(status));
  } catch (...) {
    // As for the one above.
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
  running_command->counts_ += ", ";
  running_command->counts_.AddNumber(count) += " ";
  running_command->counts_ += what;
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
  AddClosingLine();
  WritePending();
}

void CommandLog::AddClosingLine() const {
  constexpr int kMillisecondsInSecond = 1000;
  const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(
                           std::chrono::steady_clock::now() - start_)
                           .count();
  FixedLine<1024> line;
  line += " ended with ";
  line += StatusName(status_);
  line += " after ";
  line.AddNumber(elapsed / kMillisecondsInSecond) += ".";
  line.AddNumber(elapsed % kMillisecondsInSecond, 3) += " s";
  line += counts_.text();
  if (left_out_ > 0) (line += ", ").AddNumber(left_out_) += " left out";
  if (failures_ > 0) (line += ", ").AddNumber(failures_) += " failures passed over";
  if (failures_ > kMaxFailureLines) line += " (only the first 1000 listed)";
  line += ": ";
  AddOutcome(&line);
  AddLine(name_, "", line.text());
}

// What came of the command. Its status alone does not tell: many refusals are no errors to the
// host.
void CommandLog::AddOutcome(FixedLine<1024>* line) const {
  if (stopped_) {
    *line += "stopped by an internal error";
  } else if (outcome_ != nullptr) {
    *line += outcome_;
  } else if (box_[0] != L'\0') {
    constexpr int kBytesInCharacter = 3;
    char text[kBytesInCharacter * std::size(box_)] = {};
    ::WideCharToMultiByte(CP_UTF8, 0, box_, -1, text, sizeof(text), nullptr, nullptr);
    ((*line += "told \"") += text) += "\"";
  } else if (status_ == PRO_TK_USER_ABORT) {
    *line += "cancelled";
  } else if (!Ok(status_)) {
    *line += "failed";
  } else {
    *line += left_out_ > 0 || failures_ > 0 ? "done in part" : "done";
  }
}

}  // namespace qm
