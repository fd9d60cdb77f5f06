// A folder of a test's own.
#pragma once

#include <filesystem>
#include <string>

namespace wb {

// Empty at first, and gone with this.
class TemporaryFolder {
 public:
  explicit TemporaryFolder(const std::string& name)
      : path(std::filesystem::temp_directory_path() / name) {
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path path;
};

}  // namespace wb
