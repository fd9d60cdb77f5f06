// `workbench commands`: the plug-in's menu, and where each command is available; for people, or as
// the table of a README.
#include <algorithm>
#include <cstdio>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/main/subcommands.h"
#include "workbench/plugin/install_tree.h"
#include "workbench/reasons/access_reason.h"
#include "workbench/script/script_runner.h"

namespace wb {
namespace {

constexpr size_t kNameWidth = 23;
constexpr size_t kModeWidth = 15;

struct ListedCommand {
  const MenuButton* button;
  std::vector<const ModeColumn*> modes;  // in which it is available
};

std::string Padded(const std::string& text, size_t width) {
  return text + std::string(width - std::min(width, WideLength(text)), ' ');
}

ListedCommand Listed(Host& host, const MenuButton& button) {
  ListedCommand listed{&button, {}};
  const std::string& command = button.command->name;
  for (const ModeColumn& mode : ModeColumns()) {
    if (IsAvailableIn(host, command, mode)) listed.modes.push_back(&mode);
  }
  return listed;
}

void PrintMenu(const Menu& menu, const std::vector<ListedCommand>& commands) {
  std::string title = Padded("command", kNameWidth);
  for (const ModeColumn& mode : ModeColumns()) title += Padded(mode.word, kModeWidth);
  std::printf("%s: %zu commands\n%slabel\n", MenuLabel(menu.label_key, menu.message_file).c_str(),
              commands.size(), title.c_str());
  for (const ListedCommand& command : commands) {
    const MenuButton& button = *command.button;
    std::string row = Padded(button.command->name, kNameWidth);
    for (const ModeColumn& mode : ModeColumns()) {
      const bool available = std::ranges::count(command.modes, &mode) != 0;
      row += Padded(available ? "yes" : "-", kModeWidth);
    }
    std::printf("%s%s\n", row.c_str(), MenuLabel(button.label_key, button.message_file).c_str());
  }
}

// The words of a table in one language. Labels are the plug-in's own, which are Chinese.
struct TableWords {
  const char* language;
  const char* host_language;  // of the help texts
  const char* title;
  const char* always;
  const char* comma;
  const char* modes[5];  // as ModeColumns has them
};
constexpr TableWords kTableWords[] = {
    {"english",
     "usascii",
     "| # | command | label | what it does | available in |",
     "always",
     ", ",
     {"part", "assembly", "manufacturing", "drawing", "none"}},
    {"chinese",
     "chinese_cn",
     "| # | 命令 | 名称 | 作用 | 可用模式 |",
     "总是可用",
     "、",
     {"零件", "组件", "制造", "工程图", "无模型"}},
};

const TableWords& WordsIn(const std::string& language) {
  for (const TableWords& words : kTableWords) {
    if (language == words.language) return words;
  }
  throw UsageError("--markdown wants english or chinese");
}

std::string TextIn(Host& host, const char* language, const std::string& key,
                   const std::string& file) {
  host.language = language;
  host.messages.Forget();
  return MenuLabel(key, file);
}

std::string ModesText(const ListedCommand& command, const TableWords& words) {
  const std::span<const ModeColumn> all = ModeColumns();
  if (command.modes.size() == all.size()) return words.always;
  std::vector<std::string> modes;
  for (const ModeColumn* const mode : command.modes) modes.push_back(words.modes[mode - &all[0]]);
  return Join(words.comma, modes);
}

void PrintTable(Host& host, const std::vector<ListedCommand>& commands, const TableWords& words) {
  std::printf("%s\n|---|---|---|---|---|\n", words.title);
  for (size_t i = 0; i < commands.size(); ++i) {
    const MenuButton& button = *commands[i].button;
    const std::string label = TextIn(host, "chinese_cn", button.label_key, button.message_file);
    const std::string help =
        TextIn(host, words.host_language, button.help_key, button.message_file);
    std::printf("| %zu | `%s` | %s | %s | %s |\n", i + 1, button.command->name.c_str(),
                label.c_str(), help.c_str(), ModesText(commands[i], words).c_str());
  }
}

}  // namespace

int ListCommandsCommand(const CommandArguments& arguments) {
  const CommandLine line(arguments, {"--english"}, {"--markdown", "--install", "--plugin"});
  if (!line.words().empty()) throw UsageError("commands takes options only");
  const TableWords* const table =
      line.Has("--markdown") ? &WordsIn(line.Value("--markdown")) : nullptr;
  ScriptOptions options;
  options.install = InstallTree(line);
  options.plugin = line.Path("--plugin");
  RunRecord record;
  ScriptRun run("commands", options, record);
  if (line.Has("--english")) run.host.language = "usascii";
  run.EnsureStarted();
  for (const Menu& menu : run.host.commands.menus) {
    if (menu.buttons.empty()) continue;
    std::vector<ListedCommand> commands;
    for (const MenuButton& button : menu.buttons) commands.push_back(Listed(run.host, button));
    if (table != nullptr) {
      PrintTable(run.host, commands, *table);
    } else {
      PrintMenu(menu, commands);
    }
  }
  return 0;
}

}  // namespace wb
