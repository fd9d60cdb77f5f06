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

// A file's stamps around its writing: the same ones are proof that nothing was written.
struct FileWriting {
  std::optional<FileStamp> before;
  std::optional<FileStamp> after;
};
FileOutcome OutcomeOf(const FileWriting& writing);

struct ExpectedFile {
  std::wstring path;
  std::wstring
      model;  // what a file of the same path and the same model is the same as; may be empty
  FileOutcome outcome = FileOutcome::kMissing;
};
// Marks the written ones that later ones of the list, in whatever case of letters, have written
// over.
void MarkWrittenOver(const std::vector<ExpectedFile*>& files);
// What is left of it at the end of the run: a later attempt at the name may have lost the file.
FileOutcome OutcomeAtEnd(FileOutcome outcome, const std::optional<FileStamp>& stamp);

// Whether the user has the file.
bool IsThere(FileOutcome outcome);
const char* OutcomeText(FileOutcome outcome);

}  // namespace qm
