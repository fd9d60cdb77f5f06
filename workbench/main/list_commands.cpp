// `workbench commands`: the plug-in's menu, and where each command is available.
#include <algorithm>
#include <cstdio>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/main/subcommands.h"
#include "workbench/plugin/install_tree.h"
#include "workbench/script/script_runner.h"

namespace wb {
namespace {

// The modes in which the menu is shown; the last column has no model at all.
struct ModeColumn {
  const char* title;
  int mode;
};
constexpr ModeColumn kModeColumns[] = {{"part", PRO_MODE_PART_1},
                                       {"assembly", PRO_MODE_ASSEMBLY},
                                       {"manufacturing", PRO_MODE_MFG},
                                       {"drawing", PRO_MODE_DRAWING},
                                       {"none", PRO_MODE_UNUSED}};

std::string Padded(const std::string& text, size_t width) {
  return text + std::string(width - std::min(width, WideLength(text)), ' ');
}

void PrintCommand(Host& host, const MenuButton& button) {
  std::string row = Padded(button.command->name, 23);
  for (const ModeColumn& column : kModeColumns) {
    host.forced_mode = column.mode;
    row += Padded(AskAccess(button.command->name) == ACCESS_AVAILABLE ? "yes" : "-", 15);
  }
  std::printf("%s%s\n", row.c_str(), MenuLabel(button.label_key, button.message_file).c_str());
}

}  // namespace

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
