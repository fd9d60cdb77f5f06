// Fills command records.
#include "workbench/script/script_record.h"

#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/language/script_words.h"
#include "workbench/reasons/own_path.h"
#include "workbench/report/kept_files.h"
#include "workbench/report/workbook_picture.h"
#include "workbench/script/script_runner.h"
#include "workbench/script/script_windows.h"

namespace wb {
namespace {

// As many as the report shows of one command.
constexpr size_t kMostFilesKept = 500;

std::string LabelOf(Host& host, const std::string& command) {
  for (const Menu& menu : host.commands.menus) {
    for (const MenuButton& button : menu.buttons) {
      if (button.command != nullptr && button.command->name == command) {
        return MenuLabel(button.label_key, button.message_file);
      }
    }
  }
  return "";
}

Outcome OutcomeOf(const CommandRun& result) {
  if (!result.known) return Outcome::kUnknown;
  if (!result.available) return Outcome::kNotAvailable;
  return result.status == 0 ? Outcome::kDone : Outcome::kFailed;
}

}  // namespace

CommandRecorder::CommandRecorder(ScriptRun& run, const Statement& statement) : run_(run) {
  if (run.options.report.empty()) return;
  run.recording = static_cast<int>(run.record().commands.size());
  CommandRecord& command = run.record().commands.emplace_back();
  command.name = statement.Text("COMMAND");
  command.label = LabelOf(run.host, command.name);
  command.file = statement.file;
  command.line = statement.line;
  before_ = TakePicture(run.host.session);
  Watch("folder", run.folders.work);
  Watch("desktop", run.folders.desktop);
  Watch("QMconfig", run.Installed() / "QMconfig");
  Watch("directory", run.host.session.working_directory());
  clipboard_before_ = ClipboardNumber();
  run.user.StartNoting(&command);
}

CommandRecorder::~CommandRecorder() {
  run_.user.StartNoting(nullptr);
  run_.recording = -1;
}

CommandRecord& CommandRecorder::record() const {
  return run_.record().commands[static_cast<size_t>(run_.recording)];
}

void CommandRecorder::Note(const CommandRun& result) {
  if (!before_) return;
  record().outcome = OutcomeOf(result);
  record().status = WordOf(StatusWords(), result.status);
  NoteShown();
  NoteCalls();
  NoteChanges(*before_, TakePicture(run_.host.session), record());
  DropShownScene();
  NoteFiles();
  NoteOpened();
}

// A page shows an assembly that no command changes once.
void CommandRecorder::DropShownScene() {
  if (!record().scene_after.model.empty()) return;
  std::vector<CommandRecord>& commands = run_.record().commands;
  for (size_t i = static_cast<size_t>(run_.recording); i-- > 0;) {
    const Scene& shown =
        commands[i].scene_after.model.empty() ? commands[i].scene_before : commands[i].scene_after;
    if (shown.model.empty()) continue;
    if (shown == record().scene_before) record().scene_before = Scene();
    return;
  }
}

// A folder inside one that is watched already is not watched again.
void CommandRecorder::Watch(const char* name, const std::filesystem::path& folder) {
  for (const Watched& watched : watched_) {
    const std::string below = PathToUtf8(folder.lexically_relative(watched.folder));
    if (!below.empty() && !below.starts_with("..")) return;
  }
  watched_.push_back({name, folder, FolderSnapshot(folder)});
}

void CommandRecorder::NoteFiles() {
  NoteExported();
  for (const Watched& watched : watched_) {
    for (const auto& [path, what] : watched.before.Differences()) {
      const std::filesystem::path file = PathFromUtf8(path);
      if (!IsFolder(file)) NoteFile(watched, file, what);
    }
  }
}

// Of files written several times the last writing counts.
void CommandRecorder::NoteExported() {
  for (const ExportedFile& written : run_.host.events.Since<ExportedFile>(run_.marks.begin)) {
    const std::string of = written.format + " of " + written.model;
    exported_[PathToUtf8(PathFromUtf8(written.path).lexically_normal())] =
        written.is_real ? of : "stands for the " + of;
  }
}

// "new: PDF of plate.drw" for a file that one of the host's writers made.
std::string CommandRecorder::WhatOf(const std::filesystem::path& file,
                                    const std::string& change) const {
  const auto found = exported_.find(PathToUtf8(file.lexically_normal()));
  return found == exported_.end() ? change : change + ": " + found->second;
}

void CommandRecorder::NoteFile(const Watched& watched, const std::filesystem::path& file,
                               const std::string& what) {
  WrittenFile& written = record().files.emplace_back();
  written = {OwnPath(file), WhatOf(file, what), "", ""};
  if (what == "deleted") return;
  if (record().files.size() > kMostFilesKept) {
    written.no_copy = "it is one of too many";
    return;
  }
  std::u8string below = file.lexically_relative(watched.folder).generic_u8string();
  const std::string name = watched.name + "/" + std::string(below.begin(), below.end());
  const KeptFile kept = KeepFile(run_.options.report, run_.recording + 1, name, file);
  written.link = kept.link;
  written.no_copy = kept.trouble;
  const std::string extension = PathToUtf8(file.extension());
  if (EqualFolded(extension, ".xlsx") || EqualFolded(extension, ".xls")) {
    record().workbooks.push_back({written.path, DrawWorkbookFile(file)});
  }
}

void CommandRecorder::NoteOpened() {
  for (const ShellCall& call : run_.host.events.Since<ShellCall>(run_.marks.begin)) {
    record().programs.push_back({WithOwnPath(call.program), WithOwnPath(call.parameters)});
  }
  if (ClipboardNumber() != clipboard_before_) {
    record().clipboard = ClipboardText().value_or("(no text)");
  }
}

void CommandRecorder::NoteShown() {
  record().notes = run_.host.events.TextsSince<wb::Note>(run_.marks.begin);
}

void CommandRecorder::NoteCalls() {
  for (const auto& [function, count] : run_.host.trace.Counts()) {
    record().calls.push_back({function, count});
  }
  std::sort(record().calls.begin(), record().calls.end(), [](const auto& a, const auto& b) {
    return a.calls != b.calls ? a.calls > b.calls : a.function < b.function;
  });
}

}  // namespace wb
