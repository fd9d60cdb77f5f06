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

constexpr std::uint64_t Joined(DWORD high, DWORD low) {
  constexpr int kBits = 32;
  return (static_cast<std::uint64_t>(high) << kBits) | low;
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
  FileWriting writing;
  std::wstring key = LowerCased(file.path);
  writing.replaces_own = written_paths_.contains(key);
  writing.before = StampOf(file.path);
  const ProError status = write();
  writing.is_accepted = Ok(status);
  writing.after = StampOf(file.path);
  const FileOutcome outcome = OutcomeOf(writing);
  entries_.push_back({file.of, {file.path, file.model, outcome}, StatusName(status)});
  if (outcome == FileOutcome::kWritten || outcome == FileOutcome::kEmpty) {
    written_paths_.insert(std::move(key));
  }
  return outcome;
}

void ExportRecord::AddUnwritten(const File& file, const char* reason) {
  entries_.push_back({file.of, {file.path, file.model, FileOutcome::kMissing}, reason});
}

void ExportRecord::LogLines() {
  if (std::exchange(is_told_, true)) return;
  std::vector<ExpectedFile*> files;
  files.reserve(entries_.size());
  for (Entry& entry : entries_) files.push_back(&entry.file);
  MarkWrittenOver(std::move(files));
  for (const Entry& entry : entries_) {
    std::string line = ToUtf8(entry.file.path + entry.of) + ": ";
    LogEvent(line + OutcomeText(entry.file.outcome) + " (" + entry.answer + ")");
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
