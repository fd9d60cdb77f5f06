// A file that another program is to write: whole, or not at all.
#pragma once

#include <windows.h>

#include <string>

namespace qm {

// What tells a file that is being written from the old one.
struct FileState {
  bool exists = false;
  WIN32_FILE_ATTRIBUTE_DATA data = {};
};

// From the moment before the first byte. Unless it was finished, what was begun of the file is
// deleted, at the end at the latest, but never an old file that was not touched.
class NewFile {
 public:
  explicit NewFile(std::wstring path);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  // False when nothing was written.
  bool Finish();
  // Deletes what was begun now. False when it cannot be deleted.
  bool Discard();

 private:
  bool IsUntouched() const;

  const std::wstring path_;
  const FileState before_;
  bool ended_ = false;
};

}  // namespace qm
