// What became of the files that an export run was to write. The files themselves are asked, not the
// host's status alone: yesterday's file must not pass for today's.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qm {

// A file that is there: its size, and the time of its last change.
struct FileStamp {
  std::uint64_t size = 0;
  std::uint64_t time = 0;
  bool operator==(const FileStamp&) const = default;
};

enum class FileOutcome {
  kWritten,
  kWrittenAgain,  // and later once more, of the same model: nothing is lost
  kWrittenOver,   // by a later one of the same name
  kEmpty,
  kMissing,
  kOld,  // missing, but a file of this name from before is there
};

struct FileWriting {
  std::optional<FileStamp> before;
  std::optional<FileStamp> after;
  bool is_accepted = false;  // the host says success
  // A file of this run had the name before. Then the stamps may be the same: clocks of file systems
  // are too slow to tell two small files apart that are written one after the other.
  bool replaces_own = false;
};
FileOutcome OutcomeOf(const FileWriting& writing);

struct ExpectedFile {
  std::wstring path;
  std::wstring
      model;  // what a file of the same path and the same model is the same as; may be empty
  FileOutcome outcome = FileOutcome::kMissing;
};
// Marks those that later ones of the list, in whatever case of letters, have written over.
void MarkWrittenOver(std::vector<ExpectedFile*> files);

// Whether the user has the file.
bool IsThere(FileOutcome outcome);
const char* OutcomeText(FileOutcome outcome);

}  // namespace qm
