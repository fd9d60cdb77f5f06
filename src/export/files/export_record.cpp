// Looks at files before and after they are written.
#include "export/files/export_record.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "frame/guard/shield.h"
#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "frame/text/letter_case.h"
#include "frame/text/text.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr int kWordBits = 32;

// Two seconds of Windows' file times. A file of this run is made so much older before it is written
// again: clocks of file systems are too slow to tell two small files apart that are written one
// after the other.
constexpr std::uint64_t kAgeing = 20'000'000;

constexpr std::uint64_t Joined(DWORD high, DWORD low) {
  return (static_cast<std::uint64_t>(high) << kWordBits) | low;
}

// Where this fails, a file written again may pass for the one of before, not the other way round.
void SetTime(const std::wstring& path, std::uint64_t time) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE file = ::CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, kShared, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  const FILETIME written = {static_cast<DWORD>(time), static_cast<DWORD>(time >> kWordBits)};
  ::SetFileTime(file, nullptr, nullptr, &written);
  ::CloseHandle(file);
}

}  // namespace

std::optional<FileStamp> StampOf(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;
  return FileStamp{Joined(data.nFileSizeHigh, data.nFileSizeLow),
                   Joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
}

ExportRecord::~ExportRecord() {
  try {
    LogLines();
  } catch (...) {
    LogException("the record of exported files");
  }
}

FileOutcome ExportRecord::Write(const File& file, const std::function<ProError()>& write) {
  std::wstring key = LowerCased(file.path);
  FileStamp own;
  if (written_paths_.contains(key)) own = StampOf(file.path).value_or(own);
  if (own.time > kAgeing) SetTime(file.path, own.time - kAgeing);
  const auto before = StampOf(file.path);
  const ProError status = write();
  const auto after = StampOf(file.path);
  const FileOutcome outcome = OutcomeOf({before, after});
  if (own.time > kAgeing && outcome == FileOutcome::kOld) SetTime(file.path, own.time);
  Add({file.of, {file.path, file.model, outcome}, StatusName(status)});
  if (outcome == FileOutcome::kWritten || outcome == FileOutcome::kEmpty) {
    written_paths_.insert(std::move(key));
  }
  return outcome;
}

void ExportRecord::AddUnwritten(const File& file, const char* reason) {
  Add({file.of, {file.path, file.model, FileOutcome::kMissing}, reason});
}

void ExportRecord::Add(Entry entry) {
  entries_.push_back(std::move(entry));
  if (!IsThere(entries_.back().file.outcome)) LogLine(&entries_.back());
}

void ExportRecord::LogLine(Entry* entry) {
  if (std::exchange(entry->is_told, true)) return;
  const std::string line = ToUtf8(entry->file.path + entry->of) + ": ";
  LogEvent(line + OutcomeText(entry->file.outcome) + " (" + entry->answer + ")");
}

void ExportRecord::LogLines() {
  if (std::exchange(is_told_, true)) return;
  std::vector<ExpectedFile*> files;
  files.reserve(entries_.size());
  for (Entry& entry : entries_) files.push_back(&entry.file);
  MarkWrittenOver(files);
  for (Entry& entry : entries_) {
    if (entry.is_told) continue;
    entry.file.outcome = OutcomeAtEnd(entry.file.outcome, StampOf(entry.file.path));
    LogLine(&entry);
  }
}

ProError ExportRecord::Tell() {
  LogLines();
  const auto all = static_cast<long long>(entries_.size());
  const auto there = static_cast<long long>(std::ranges::count_if(
      entries_, [](const Entry& entry) { return IsThere(entry.file.outcome); }));
  LogCount("files expected", all);
  LogCount("files written", there);
  const auto lost = std::ranges::count_if(
      entries_, [](const Entry& entry) { return entry.file.outcome == FileOutcome::kWrittenOver; });
  if (lost > 0) LogCount("files written over", static_cast<long long>(lost));
  if (all > there + lost) LogLeftOutCount(all - there - lost);
  if (there == all) return PRO_TK_NO_ERROR;
  DisplayNote("Exported files: %0w of %1w", std::to_wstring(there).c_str(),
              std::to_wstring(all).c_str());
  return PRO_TK_CANT_WRITE;
}

}  // namespace qm
