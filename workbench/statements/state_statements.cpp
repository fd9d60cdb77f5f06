// Statements on what the user has chosen and set: selection, options, settings, mode, clipboard.
#include "workbench/base/text.h"
#include "workbench/language/script_words.h"
#include "workbench/script/script_paths.h"
#include "workbench/script/script_runner.h"
#include "workbench/script/script_windows.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

void SelectNone(ScriptRun& run, const Statement&) {
  run.host.session.selection_buffer.clear();
}

void Select(ScriptRun& run, const Statement& statement) {
  std::vector<PickedItem> picks = PicksOf(run, statement);
  std::vector<PickedItem>& buffer = run.host.session.selection_buffer;
  if (!statement.Has("also")) buffer.clear();
  buffer.insert(buffer.end(), picks.begin(), picks.end());
}

void OptionNone(ScriptRun& run, const Statement& statement) {
  run.host.options.erase(FoldCase(statement.Text("NAME")));
}

void Option(ScriptRun& run, const Statement& statement) {
  run.host.options[FoldCase(statement.Text("NAME"))] = statement.Texts("TEXT");
}

void ExpectOption(ScriptRun& run, const Statement& statement) {
  const auto held = run.host.options.find(FoldCase(statement.Text("NAME")));
  const bool is_set = held != run.host.options.end() && !held->second.empty();
  const std::string wanted = Join(", ", statement.Texts("TEXT"));
  run.CheckText(statement, "option " + statement.Text("NAME"), statement.Has("none") ? "" : wanted,
                is_set ? Join(", ", held->second) : "");
}

void Setting(ScriptRun& run, const Statement& statement) {
  const bool written = WriteProfile(
      run.ConfigFile(statement.Text("FILE")), statement.Text("SECTION"), statement.Text("KEY"),
      statement.Has("missing") ? std::nullopt : std::optional(statement.Text("TEXT")));
  if (!written) throw ScriptError("the setting cannot be written");
}

void ConfigFileMissing(ScriptRun& run, const Statement& statement) {
  const std::filesystem::path file = run.ConfigFile(statement.Text("FILE"));
  FlushProfile(file);
  std::filesystem::remove(file);
}

// Another program has it open and lets nobody else in.
void ConfigFileHeld(ScriptRun& run, const Statement& statement) {
  const std::filesystem::path file = run.ConfigFile(statement.Text("FILE"));
  FlushProfile(file);
  run.held_files.erase(file);
  if (statement.Text("STATE") == "free") return;
  auto held = std::make_unique<FileHolder>(file);
  if (!held->holds()) throw ScriptError(PathToUtf8(file) + " cannot be held");
  run.held_files.emplace(file, std::move(held));
}

void ConfigFolderMissing(ScriptRun& run, const Statement&) {
  std::filesystem::remove_all(run.Installed() / "QMconfig");
}

void Habit(ScriptRun& run, const Statement& statement) {
  std::vector<std::string> words;
  for (const HabitRow& row : HabitRows()) {
    if (statement.Text("NAME") == row.word) {
      run.host.habits.*row.habit = statement.Text("STATE") == "on";
      return;
    }
    words.push_back(row.word);
  }
  throw ScriptError("the host has no habit \"" + statement.Text("NAME") +
                    "\" that scripts switch; it has " + Join(", ", words));
}

void Mode(ScriptRun& run, const Statement& statement) {
  run.host.forced_mode = *NumberOf(ModeWords(), statement.Text("MODE"));
}

void Language(ScriptRun& run, const Statement& statement) {
  run.host.language = statement.Text("LANGUAGE") == "english" ? "usascii" : "chinese_cn";
  run.host.messages.Forget();
}

void Clipboard(ScriptRun&, const Statement& statement) {
  if (!SetClipboardText(statement.Text("TEXT")))
    throw ScriptError("the clipboard is not to be had");
}

void ClipboardBusy(ScriptRun& run, const Statement& statement) {
  run.clipboard_holder.reset();
  if (statement.Text("STATE") == "busy") {
    run.clipboard_holder = std::make_unique<ClipboardHolder>();
  }
}

// clang-format off
constexpr StatementForm kStateForms[] = {
    {"select none",                                   kTopPlace, &SelectNone},
    {"select [also] item ITEM ID of MODEL [at PATH]", kTopPlace, &Select},
    {"select [also] PATH...",                         kTopPlace, &Select},
    {"option NAME none",                              kTopPlace, &OptionNone},
    {"option NAME TEXT...",                           kTopPlace, &Option},
    {"expect option NAME none",                       kTopOrDialog, &ExpectOption},
    {"expect option NAME TEXT...",                    kTopOrDialog, &ExpectOption},
    {"setting FILE SECTION KEY missing",              kTopOrDialog, &Setting},
    {"setting FILE SECTION KEY TEXT",                 kTopOrDialog, &Setting},
    {"config_folder missing",                         kTopPlace, &ConfigFolderMissing},
    {"config_file FILE missing",                      kTopPlace, &ConfigFileMissing},
    {"config_file FILE STATE:held|free",              kTopOrDialog, &ConfigFileHeld},
    {"habit NAME STATE:on|off",                       kTopPlace, &Habit},
    {"mode MODE",                                     kTopPlace, &Mode},
    {"language LANGUAGE:chinese|english",             kTopPlace, &Language},
    {"clipboard text TEXT",                           kTopPlace, &Clipboard},
    {"clipboard STATE:busy|free",                     kTopPlace, &ClipboardBusy},
};
// clang-format on

}  // namespace

StatementForms StateStatements() {
  return kStateForms;
}

}  // namespace wb
