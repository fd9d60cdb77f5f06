// The user of the benchmark over a folder: works the dialogs, chooses the format and the folder,
// and reads all boxes away.
#pragma once

#include <string>

#include "workbench/host/host.h"

namespace wb {

// How new names begin, before the number of the row.
inline constexpr char kRenamed[] = "renamed_";

// Whatever cannot be done throws std::runtime_error.
class FolderUser : public User {
 public:
  // Both are paths; the folder is where commands write that ask for one.
  FolderUser(std::string format, std::string folder)
      : format_(std::move(format)), folder_(std::move(folder)) {}

  // From now on the list of drawings is that of the current assembly, and is not exported.
  void WorkOnComponents() { has_components_ = true; }
  // Of the latest such list, the drawings whose two sheets and whose parameters have been loaded.
  int loaded() const { return loaded_; }
  const std::string& last_box() const { return last_box_; }

  void WorkDialog(LiveDialog& dialog) override;
  std::optional<std::string> ChooseFile(const FileRequest& request) override;
  int AnswerMessageBox(const MessageBox& box) override;
  std::optional<std::vector<PickedItem>> Pick(const PickRequest&) override { return std::nullopt; }
  std::optional<std::string> AnswerPrompt(const std::string&, int) override { return std::nullopt; }

 private:
  void ListComponents(LiveDialog& dialog);

  std::string format_;
  std::string folder_;
  std::string last_box_;
  int loaded_ = 0;
  bool has_components_ = false;
};

}  // namespace wb
