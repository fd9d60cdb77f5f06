// Writes down for the report what one command did.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workbench/plugin/plugin.h"
#include "workbench/report/session_picture.h"
#include "workbench/script/script_snapshot.h"

namespace wb {

class ScriptRun;
struct Statement;

// Lives around the run of a command; does nothing unless the run is to be recorded.
class CommandRecorder {
 public:
  CommandRecorder(ScriptRun& run, const Statement& statement);
  ~CommandRecorder();
  CommandRecorder(const CommandRecorder&) = delete;
  CommandRecorder& operator=(const CommandRecorder&) = delete;

  // Call right after the command has ended.
  void Note(const CommandRun& result);

 private:
  CommandRecord& record() const;
  void NoteShown();
  void NoteCalls();

  ScriptRun& run_;
  std::optional<SessionPicture> before_;
  std::vector<FolderSnapshot> folders_;
};

}  // namespace wb
