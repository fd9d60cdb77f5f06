// Writes down for the report what one command did.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "workbench/plugin/plugin.h"
#include "workbench/report/session_picture.h"
#include "workbench/script/script_snapshot.h"

namespace wb {

class ScriptRun;
struct Statement;

// Lives around the run of a command; does nothing unless the run is to be reported.
class CommandRecorder {
 public:
  CommandRecorder(ScriptRun& run, const Statement& statement);
  ~CommandRecorder();
  CommandRecorder(const CommandRecorder&) = delete;
  CommandRecorder& operator=(const CommandRecorder&) = delete;

  // Call right after the command has ended.
  void Note(const CommandRun& result);

 private:
  // A folder that commands write into, and the name under which copies of its files are kept.
  struct Watched {
    std::string name;
    std::filesystem::path folder;
    FolderSnapshot before;
  };

  CommandRecord& record() const;
  void Watch(const char* name, const std::filesystem::path& folder);
  void NoteShown();
  void NoteCalls();
  void DropShownScene();
  void NoteFiles();
  void NoteExported();
  std::string WhatOf(const std::filesystem::path& file, const std::string& change) const;
  void NoteFile(const Watched& watched, const std::filesystem::path& file, const std::string& what);
  void NoteOpened();

  ScriptRun& run_;
  std::optional<SessionPicture> before_;
  std::vector<Watched> watched_;
  std::map<std::string, std::string> exported_;  // by path: what the host's writers made
  unsigned clipboard_before_ = 0;
};

}  // namespace wb
