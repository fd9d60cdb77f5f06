// A file that another program is to write: whole, or not at all. An old file of the name is there
// until then, and again when nothing came of it.
#pragma once

#include <windows.h>

#include <string>

namespace qm {

class NewFile {
 public:
  explicit NewFile(std::wstring path) : path_(std::move(path)) {}
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  // Discards what was begun, unless it was finished.
  ~NewFile();

  // Right before the other program writes: an old file goes aside, under a name of its own beside
  // it, so that even a process that is killed meanwhile loses nothing. Otherwise Windows' error,
  // and the old file is where it was.
  DWORD Begin();
  // After that: the old file is deleted. False when nothing was written.
  bool Finish();
  bool is_finished() const { return stage_ == Stage::kFinished; }

  // What could not be cleared away.
  struct Leftovers {
    bool unfinished = false;  // what was begun
    std::wstring old_file;    // still aside, under this name; empty: none
  };
  // Deletes what was begun, and puts the old file back.
  Leftovers Discard();

 private:
  // The file at `path_` is not ours before kBegun, nor when it was finished or discarded.
  enum class Stage { kUntouched, kBegun, kFinished, kDiscarded };

  const std::wstring path_;
  std::wstring aside_;  // the old file; empty: there is none
  Stage stage_ = Stage::kUntouched;
};

}  // namespace qm
