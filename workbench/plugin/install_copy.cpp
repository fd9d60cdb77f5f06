// Copies the install tree and cleans up behind it.
#include "workbench/plugin/install_copy.h"

#include <cstdlib>
#include <vector>

#include "workbench/base/process.h"
#include "workbench/base/temporary_place.h"
#include "workbench/base/text.h"

namespace wb {

namespace fs = std::filesystem;

InstallCopy::InstallCopy(const fs::path& tree, const std::string& purpose)
    : prefix_("workbench " + purpose + " "),
      top_(TemporaryPlace() / PathFromUtf8(prefix_ + std::to_string(OwnProcessId()))),
      tree_(top_ / "quillmax"),
      work_(top_ / "work") {
  RemoveLeftovers();
  fs::create_directories(work_);
  fs::copy(tree, tree_, fs::copy_options::recursive | fs::copy_options::skip_existing);
  // What install.cmd does with the settings.
  const fs::path shipped = tree_ / "QMconfig" / "defaults";
  std::error_code none_are_shipped;
  for (const auto& file : fs::directory_iterator(shipped, none_are_shipped)) {
    const fs::path own = tree_ / "QMconfig" / file.path().filename();
    if (!fs::exists(own)) fs::copy_file(file.path(), own);
  }
}

InstallCopy::~InstallCopy() {
  RemoveLeftovers();
}

fs::path InstallCopy::dll() const {
  return tree_ / "quillmax5.1C3.dll";
}

namespace {

// Whether a process other than this one still works in the folder, by the number at its name's end.
bool IsInUse(const std::string& name, size_t prefix_length) {
  const long process = std::strtol(name.c_str() + prefix_length, nullptr, 10);
  return process != OwnProcessId() && ProcessRuns(process);
}

// All but the files that are in use.
void RemoveWhatCanBe(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> items;
  for (const auto& item : fs::recursive_directory_iterator(folder, error)) {
    items.push_back(item.path());
  }
  // From the deepest: those of a folder come after it.
  for (auto item = items.rbegin(); item != items.rend(); ++item) fs::remove(*item, error);
  fs::remove(folder, error);
}

}  // namespace

void InstallCopy::RemoveLeftovers() const {
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(top_.parent_path(), error)) {
    const std::string name = PathToUtf8(entry.path().filename());
    if (!name.starts_with(prefix_) || IsInUse(name, prefix_.size())) continue;
    RemoveWhatCanBe(entry.path());
  }
}

}  // namespace wb
