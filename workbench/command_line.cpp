// Words and options of a command line; the import and commands subcommands.
#include "workbench/command_line.h"

#include <algorithm>
#include <cstdio>

#include "workbench/import_command.h"
#include "workbench/model_file.h"
#include "workbench/script_runner.h"
#include "workbench/script_windows.h"
#include "workbench/script_words.h"
#include "workbench/utf8_text.h"

namespace wb {
namespace {

constexpr const char* kTreeName = "quillmax-5.1-C3";
constexpr int kAvailable = 3;

bool Contains(const std::vector<std::string>& list, const std::string& text) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

// The modes in which the menu is shown; the last column has no model at all.
struct ModeColumn {
  const char* title;
  int mode;
};
constexpr ModeColumn kModeColumns[] = {
    {"part", 1}, {"assembly", 5}, {"manufacturing", 8}, {"drawing", 6}, {"none", -1}};

std::string Padded(const std::string& text, size_t width) {
  return text + std::string(width - std::min(width, WideLength(text)), ' ');
}

void PrintCommand(Host& host, const MenuButton& button) {
  std::string row = Padded(button.command->name, 23);
  for (const ModeColumn& column : kModeColumns) {
    host.forced_mode = column.mode;
    row += Padded(AskAccess(button.command->name) == kAvailable ? "yes" : "-", 15);
  }
  std::printf("%s%s\n", row.c_str(), MenuLabel(button.label_key, button.message_file).c_str());
}

}  // namespace

CommandLine::CommandLine(const CommandArguments& arguments, const std::vector<std::string>& flags,
                         const std::vector<std::string>& with_value) {
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (!argument.starts_with("--")) {
      words_.push_back(argument);
    } else if (Contains(flags, argument)) {
      options_.emplace_back(argument, "");
    } else if (!Contains(with_value, argument)) {
      throw UsageError("unknown option " + argument);
    } else if (++i == arguments.size()) {
      throw UsageError(argument + " wants a value");
    } else {
      options_.emplace_back(argument, arguments[i]);
    }
  }
}

bool CommandLine::Has(const std::string& option) const {
  return std::any_of(options_.begin(), options_.end(),
                     [&](const auto& given) { return given.first == option; });
}

std::string CommandLine::Value(const std::string& option) const {
  std::string value;
  for (const auto& [name, given] : options_) {
    if (name == option) value = given;
  }
  return value;
}

std::filesystem::path CommandLine::Path(const std::string& option) const {
  const std::string value = Value(option);
  return value.empty() ? std::filesystem::path() : std::filesystem::absolute(PathFromUtf8(value));
}

std::filesystem::path InstallTree(const CommandLine& line) {
  const std::filesystem::path tree =
      line.Has("--install") ? line.Path("--install") : ProgramFile().parent_path() / kTreeName;
  if (std::filesystem::is_directory(tree / "text")) return tree;
  throw UsageError("there is no install tree at " + PathToUtf8(tree) +
                   "; build one, or name it with --install DIR");
}

int ImportCommand(const CommandArguments& arguments) {
  const CommandLine line(arguments, {"--force"}, {});
  if (line.words().size() != 2) throw UsageError("import wants a STEP file and a folder");
  const std::filesystem::path folder = PathFromUtf8(line.words()[1]);
  const ImportedModels imported = ReadStepModels(PathFromUtf8(line.words()[0]));
  WriteModels(imported, folder, line.Has("--force"));
  std::printf("%s", ModelTable(imported).c_str());
  for (const std::string& note : imported.notes) std::printf("note: %s\n", note.c_str());
  for (const ModelName& top : imported.tops) std::printf("top: %s\n", top.Text().c_str());
  std::printf("%zu models in %s\n", imported.models.size(), PathToUtf8(folder).c_str());
  return 0;
}

int ListCommandsCommand(const CommandArguments& arguments) {
  const CommandLine line(arguments, {"--english"}, {"--install", "--plugin"});
  if (!line.words().empty()) throw UsageError("commands takes options only");
  ScriptOptions options;
  options.install = InstallTree(line);
  options.plugin = line.Path("--plugin");
  RunRecord record;
  ScriptRun run("commands", options, record);
  if (line.Has("--english")) run.host.language = "usascii";
  run.EnsureStarted();
  std::string title = Padded("command", 23);
  for (const ModeColumn& column : kModeColumns) title += Padded(column.title, 15);
  for (const Menu& menu : run.host.commands.menus) {
    if (menu.buttons.empty()) continue;
    std::printf("%s: %zu commands\n%slabel\n", MenuLabel(menu.label_key, menu.message_file).c_str(),
                menu.buttons.size(), title.c_str());
    for (const MenuButton& button : menu.buttons) PrintCommand(run.host, button);
  }
  return 0;
}

}  // namespace wb
