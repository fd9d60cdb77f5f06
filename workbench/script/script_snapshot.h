// A session and its folders at one moment, to be put back after a command has run with faults.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "workbench/host/host.h"

namespace wb {

// All files below a folder with their contents; settings as they would be read now.
std::map<std::filesystem::path, std::string> FilesWithContents(const std::filesystem::path& folder);

class FolderSnapshot {
 public:
  explicit FolderSnapshot(std::filesystem::path folder);
  // Rewrites what has changed or gone, removes what is new.
  void Restore() const;
  // What differs now: path and "new", "changed" or "deleted".
  std::vector<std::pair<std::string, std::string>> Differences() const;

 private:
  std::filesystem::path folder_;
  std::map<std::filesystem::path, std::string> files_;
};

class SessionSnapshot {
 public:
  SessionSnapshot(const Host& host, const std::vector<std::filesystem::path>& folders);
  // Models erased meanwhile come back under new handles; models that came in are erased.
  void Restore(Host& host) const;

 private:
  struct HeldModel {
    Model model;
    std::vector<bool> resolved;  // which of its links had their model in session
  };
  struct HeldPick {
    PickedItem pick;
    ModelName owner, root;
  };
  struct HeldWindow {
    int id;
    ModelName model;
    bool shows_model;
  };

  void RestoreModels(Session& session) const;
  void RestoreWindows(Session& session) const;

  std::vector<HeldModel> models_;
  std::vector<HeldPick> buffer_;
  std::vector<HeldWindow> windows_;
  int current_window_;
  int active_window_;
  std::filesystem::path working_directory_;
  std::filesystem::path current_folder_;  // the process's
  std::string clipboard_;
  std::map<std::string, std::vector<std::string>> options_;
  std::vector<FolderSnapshot> folders_;
};

}  // namespace wb
