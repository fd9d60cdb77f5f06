// Comparison of a file with its former self, and deletion.
#include "export/spreadsheet/new_file.h"

#include "frame/messages/run_log.h"

namespace qm {
namespace {

// Two seconds in all: a program that has ended, or a virus scanner, may hold a file a little
// longer.
constexpr int kDeleteAttempts = 20;
constexpr DWORD kDeletePauseMs = 100;

FileState StateOf(const std::wstring& path) {
  FileState state;
  state.exists = ::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &state.data) != FALSE;
  return state;
}

bool IsSame(const FileState& a, const FileState& b) {
  return a.exists == b.exists && a.data.nFileSizeLow == b.data.nFileSizeLow &&
         a.data.nFileSizeHigh == b.data.nFileSizeHigh &&
         ::CompareFileTime(&a.data.ftLastWriteTime, &b.data.ftLastWriteTime) == 0;
}

}  // namespace

NewFile::NewFile(std::wstring path) : path_(std::move(path)), before_(StateOf(path_)) {}

NewFile::~NewFile() {
  if (!ended_) Discard();
}

bool NewFile::Finish() {
  ended_ = !IsUntouched();
  return ended_;
}

bool NewFile::Discard() {
  ended_ = true;
  for (int attempt = 0; attempt < kDeleteAttempts; ++attempt) {
    if (IsUntouched() || ::DeleteFileW(path_.c_str())) return true;
    ::Sleep(kDeletePauseMs);
  }
  LogEvent("an unfinished file could not be deleted");
  return false;
}

bool NewFile::IsUntouched() const {
  return IsSame(before_, StateOf(path_));
}

}  // namespace qm
