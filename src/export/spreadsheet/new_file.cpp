// Moving of the old file, and deletion of what is not wanted.
#include "export/spreadsheet/new_file.h"

#include "export/spreadsheet/old_file_rules.h"
#include "frame/messages/run_log.h"
#include "frame/text/fixed_line.h"

namespace qm {
namespace {

// Two seconds in all: a program that has ended, or a virus scanner, may hold a file a little
// longer.
constexpr int kAttempts = 20;
constexpr DWORD kPauseMs = 100;
// Names tried for an old file: others may be taken by files that were left aside, or by the user's.
constexpr int kMostNames = 1000;

bool Exists(const std::wstring& path) {
  return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// Until it succeeds.
template <typename Step>
bool Repeat(Step step) {
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (step()) return true;
    ::Sleep(kPauseMs);
  }
  return false;
}

bool Delete(const std::wstring& path) {
  return Repeat([&] { return ::DeleteFileW(path.c_str()) || !Exists(path); });
}

// Windows' error. Never over a file that has the name.
DWORD Move(const std::wstring& from, const std::wstring& to) {
  return ::MoveFileExW(from.c_str(), to.c_str(), 0) ? ERROR_SUCCESS : ::GetLastError();
}

bool IsTaken(DWORD error) {
  return error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS;
}

bool IsMissing(DWORD error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

// Without memory of its own: this is told on the way out of any failure.
void LogPath(const char* what, const std::wstring& path) {
  FixedLine<1024> line;
  char text[768] = {};
  ::WideCharToMultiByte(CP_UTF8, 0, path.c_str(), -1, text, sizeof(text) - 1, nullptr, nullptr);
  (line += what) += text;
  LogEvent(line.text());
}

}  // namespace

NewFile::~NewFile() {
  Discard();
}

DWORD NewFile::Begin() {
  DWORD error = ERROR_ALREADY_EXISTS;
  std::wstring aside;
  for (int attempt = 1; IsTaken(error) && attempt <= kMostNames; ++attempt) {
    aside = AsidePath(path_, attempt);
    error = Move(path_, aside);
  }
  if (error != ERROR_SUCCESS && !IsMissing(error)) return error;
  if (error == ERROR_SUCCESS) aside_ = std::move(aside);
  stage_ = Stage::kBegun;
  return ERROR_SUCCESS;
}

bool NewFile::Finish() {
  if (stage_ != Stage::kBegun || !Exists(path_)) return false;
  stage_ = Stage::kFinished;
  if (!aside_.empty() && !Delete(aside_)) LogPath("a replaced file could not be deleted: ", aside_);
  return true;
}

NewFile::Leftovers NewFile::Discard() {
  Leftovers left;
  if (stage_ != Stage::kBegun) return left;
  stage_ = Stage::kDiscarded;
  left.unfinished = !Delete(path_);
  if (left.unfinished) LogPath("an unfinished file could not be deleted: ", path_);
  const bool is_back =
      aside_.empty() ||
      (!left.unfinished && Repeat([&] { return Move(aside_, path_) == ERROR_SUCCESS; }));
  if (is_back) return left;
  LogPath("an old file could not be put back, it is now ", aside_);
  left.old_file = std::move(aside_);
  return left;
}

}  // namespace qm
