// Copies the install tree and cleans up behind it.
#include "workbench/install_copy.h"

#include "workbench/model_file.h"
#include "workbench/windows_headers.h"

namespace wb {

namespace fs = std::filesystem;

InstallCopy::InstallCopy(const fs::path& tree, const std::string& purpose)
    : prefix_("workbench " + purpose + " "),
      top_(fs::temp_directory_path() / (prefix_ + std::to_string(::GetCurrentProcessId()))),
      tree_(top_ / "quillmax"),
      work_(top_ / "work") {
  RemoveLeftovers();
  fs::create_directories(work_);
  fs::copy(tree, tree_, fs::copy_options::recursive | fs::copy_options::skip_existing);
}

InstallCopy::~InstallCopy() {
  RemoveLeftovers();
}

fs::path InstallCopy::dll() const {
  return tree_ / "quillmax5.1C3.dll";
}

// What another running process has loaded cannot be removed and stays.
void InstallCopy::RemoveLeftovers() const {
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(top_.parent_path(), error)) {
    if (!PathToUtf8(entry.path().filename()).starts_with(prefix_)) continue;
    fs::remove_all(entry.path(), error);
  }
}

}  // namespace wb
