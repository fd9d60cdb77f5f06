// The files that a run was to write, and what became of each.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "export/files/export_outcome_rules.h"
#include "toolkit/types.h"

namespace qm {

// Nothing when there is no such file.
std::optional<FileStamp> StampOf(const std::wstring& path);

// What is not written is told at once, for a host that does not live to the end; what is, at the
// end, since only then is known what of it is still there. The lines go into the run log at the
// latest when the record ends.
class ExportRecord {
 public:
  ExportRecord() = default;
  ExportRecord(const ExportRecord&) = delete;
  ExportRecord& operator=(const ExportRecord&) = delete;
  ~ExportRecord();

  struct File {
    std::wstring path;
    std::wstring model;  // see ExpectedFile
    std::wstring of;     // what the log says behind the path; may be empty
  };
  // Has `write` write the file, and tells what has become of it so far.
  FileOutcome Write(const File& file, const std::function<ProError()>& write);
  // A file that is not written, and why.
  void AddUnwritten(const File& file, const char* reason);

  // One line for each file in the run log, and their number; the user reads when some are missing,
  // and then the answer is a failure.
  ProError Tell();

 private:
  struct Entry {
    std::wstring of;
    ExpectedFile file;
    const char* answer;  // the host's, or why it was not asked
    bool is_told = false;
  };

  void Add(Entry entry);
  void LogLines();
  static void LogLine(Entry* entry);

  std::vector<Entry> entries_;
  std::unordered_set<std::wstring> written_paths_;  // lower case
  bool is_told_ = false;
};

}  // namespace qm
