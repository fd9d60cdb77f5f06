// A private copy of the install tree, so that the plug-in's settings and log can change without a
// trace. Lies in the temporary folder.
#pragma once

#include <filesystem>
#include <string>

namespace wb {

class InstallCopy {
 public:
  // Copies `tree` and puts the shipped settings in place. `purpose` is part of the folder's name,
  // which is this process's own. Throws std::filesystem::filesystem_error.
  InstallCopy(const std::filesystem::path& tree, const std::string& purpose);
  // Removes it. The library file outlives this when the plug-in was started, since it then stays
  // loaded; the next copy for the same purpose removes what is left of earlier processes.
  ~InstallCopy();
  InstallCopy(const InstallCopy&) = delete;
  InstallCopy& operator=(const InstallCopy&) = delete;

  const std::filesystem::path& tree() const { return tree_; }
  std::filesystem::path dll() const;
  // Beside the tree: for models, the run log and what else a run writes.
  const std::filesystem::path& work() const { return work_; }

 private:
  void RemoveLeftovers() const;

  std::string prefix_;
  std::filesystem::path top_;
  std::filesystem::path tree_;
  std::filesystem::path work_;
};

}  // namespace wb
