// Fills command records.
#include "workbench/script/script_record.h"

#include <algorithm>

#include "workbench/language/script_words.h"
#include "workbench/script/script_runner.h"

namespace wb {
namespace {

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
  if (!run.options.record) return;
  run.recording = static_cast<int>(run.record().commands.size());
  CommandRecord& command = run.record().commands.emplace_back();
  command.name = statement.Text("COMMAND");
  command.label = LabelOf(run.host, command.name);
  command.file = statement.file;
  command.line = statement.line;
  before_ = TakePicture(run.host.session);
  folders_.emplace_back(run.folders.work);
  folders_.emplace_back(run.Installed() / "QMconfig");
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
  for (const FolderSnapshot& folder : folders_) {
    for (const auto& [path, what] : folder.Differences()) record().files.push_back({path, what});
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
