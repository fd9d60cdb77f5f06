// A target that is missing appears whole, by one renaming. Into one that is there the files go one
// by one, by a list with which a half-done move is taken back.
#include "workbench/step/import_staging.h"

#include <charconv>
#include <fstream>
#include <sstream>
#include <vector>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = ".import-";
constexpr const char* kMark = "unfinished import";  // a file by which such a folder is known
constexpr const char* kFiles = "files";
constexpr const char* kMoving = "moving";  // the names of the files that are being moved
constexpr const char* kDraft = "to be moved";

// What is listed and no longer here has been moved.
void TakeBackMoves(const fs::path& top) {
  std::error_code error;
  std::istringstream list(ReadFileBytes(top / kMoving).value_or(""));
  for (std::string name; std::getline(list, name);) {
    const fs::path file = PathFromUtf8(name);
    if (!fs::exists(top / kFiles / file, error)) fs::remove(top.parent_path() / file, error);
  }
}

// The mark goes last, so that whoever comes next can go on where this was cut short.
void Undo(const fs::path& top) {
  std::error_code error;
  TakeBackMoves(top);
  fs::remove_all(top / kFiles, error);
  for (const char* const file : {kMoving, kDraft, kMark}) fs::remove(top / file, error);
  fs::remove(top, error);
}

bool IsLeftOver(const fs::path& folder) {
  const std::string name = PathToUtf8(folder.filename());
  if (!name.starts_with(kPrefix) || !fs::exists(folder / kMark)) return false;
  long process = 0;
  std::from_chars(name.data() + kPrefix.size(), name.data() + name.size(), process);
  return process > 0 && (process == OwnProcessId() || !ProcessRuns(process));
}

// Absolute, and without a closing separator.
fs::path Whole(const fs::path& folder) {
  const fs::path whole = fs::weakly_canonical(fs::absolute(folder));
  return whole.has_filename() ? whole : whole.parent_path();
}

fs::path NearestFolder(fs::path at) {
  while (!fs::exists(at) && at.has_relative_path()) at = at.parent_path();
  return at;
}

void WriteFile(const fs::path& file, const std::string& text) {
  std::ofstream out(file, std::ios::binary);
  out << text;
  out.flush();
  if (!out) throw std::runtime_error(PathToUtf8(file) + " cannot be written");
}

void MoveEach(const fs::path& top, const fs::path& target) {
  std::vector<fs::path> names;
  std::string list;
  for (const auto& item : fs::directory_iterator(top / kFiles)) {
    names.push_back(item.path().filename());
    list += PathToUtf8(names.back()) + "\n";
  }
  // Half a list would name files that are not ours.
  WriteFile(top / kDraft, list);
  fs::rename(top / kDraft, top / kMoving);
  for (const fs::path& name : names) fs::rename(top / kFiles / name, target / name);
  // From here on they are the user's.
  fs::remove(top / kMoving);
}

}  // namespace

void UndoDeadImports(const fs::path& target) {
  std::error_code error;
  std::vector<fs::path> left_over;
  for (const auto& item : fs::directory_iterator(NearestFolder(Whole(target)), error)) {
    if (IsLeftOver(item.path())) left_over.push_back(item.path());
  }
  for (const fs::path& folder : left_over) Undo(folder);
}

ImportStaging::ImportStaging(const fs::path& target) {
  const fs::path whole = Whole(target);
  base_ = NearestFolder(whole);
  missing_ = whole.lexically_relative(base_);
  if (missing_ == ".") missing_.clear();
  top_ = base_ / PathFromUtf8(std::string(kPrefix) + std::to_string(OwnProcessId()));
  // What lies there still is somebody's.
  while (fs::exists(top_)) top_ += "_";
  folder_ = top_ / kFiles / missing_;
  watch_.emplace([top = top_] { Undo(top); });
  fs::create_directory(top_);
  WriteFile(top_ / kMark, "");
  fs::create_directories(folder_);
}

void ImportStaging::Deliver() const {
  if (missing_.empty()) {
    MoveEach(top_, base_);
  } else {
    const fs::path first = *missing_.begin();
    fs::rename(top_ / kFiles / first, base_ / first);
  }
}

}  // namespace wb
