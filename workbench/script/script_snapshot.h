// A session and its folders at one moment, to be put back after a command has run with faults.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "workbench/host/host.h"

namespace wb {

// All files below a folder with their contents, settings as they would be read now; folders, whose
// paths end with a separator, with none.
using FileContents = std::map<std::filesystem::path, std::string>;
inline bool IsFolder(const std::filesystem::path& path) {
  return !path.has_filename();
}
FileContents FilesWithContents(const std::filesystem::path& folder);
// Of several folders, in their order.
using FolderContents = std::vector<FileContents>;
FolderContents ContentsOf(const std::vector<std::filesystem::path>& folders);

class FolderSnapshot {
 public:
  explicit FolderSnapshot(std::filesystem::path folder);
  // Rewrites what has changed or gone, removes what is new: against `now`, which was read before.
  // What cannot be removed stays. False when all was as it should be.
  bool Restore(const FileContents& now) const;
  // What differs now: path and "new", "changed" or "deleted".
  std::vector<std::pair<std::string, std::string>> Differences() const;

 private:
  std::vector<std::pair<std::string, std::string>> DifferencesOf(const FileContents& now) const;

  std::filesystem::path folder_;
  FileContents files_;
};

class SessionSnapshot {
 public:
  SessionSnapshot(const Host& host, const std::vector<std::filesystem::path>& folders);
  // Models erased meanwhile come back under new handles; models that came in are erased.
  void Restore(Host& host) const;
  // The same by what the folders hold now, which is not read again. False when no file was touched.
  bool Restore(Host& host, const FolderContents& now) const;

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

  std::vector<std::filesystem::path> folder_paths_;
  std::vector<HeldModel> models_;
  std::vector<HeldPick> buffer_;
  std::vector<HeldWindow> windows_;
  int current_window_;
  int active_window_;
  std::optional<ModelName> activated_;  // the model of a component
  std::filesystem::path working_directory_;
  std::filesystem::path current_folder_;  // the process's
  std::string clipboard_;
  std::map<std::string, std::vector<std::string>> options_;
  std::vector<FolderSnapshot> folders_;
};

}  // namespace wb
