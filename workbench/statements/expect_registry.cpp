// Expectations on commands, menus, popups and notifications of the plug-in.
#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/reasons/access_reason.h"
#include "workbench/script/script_runner.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

Command* FindCommand(ScriptRun& run, const Statement& statement) {
  run.EnsureStarted();
  return run.host.commands.Find(statement.Text("NAME"));
}

Command& CommandAt(ScriptRun& run, const Statement& statement) {
  Command* const command = FindCommand(run, statement);
  if (command != nullptr) return *command;
  throw ScriptError("the plug-in has registered no command " + statement.Text("NAME") +
                    CommandMeant(run.host, statement.Text("NAME")));
}

const char* StateWord(int state) {
  constexpr const char* kWords[] = {"not_offered", "unavailable", "disallowed", "available"};
  return state >= 0 && state <= ACCESS_AVAILABLE ? kWords[state] : "unknown";
}

void ExpectAccess(ScriptRun& run, const Statement& statement) {
  run.EnsureStarted();
  const int state = AskAccess(statement.Text("COMMAND"));
  const std::string& command = statement.Text("COMMAND");
  std::string got = state < 0 ? "no such command" : StateWord(state);
  const bool holds = got == statement.Text("STATE");
  if (!holds)
    got += state < 0 ? CommandMeant(run.host, command) : ": " + WhyUnavailable(run.host, command);
  run.Check(statement, holds, command, statement.Text("STATE"), got);
  for (const std::string& complaint : run.TakeComplaints()) run.Fail(statement, complaint);
}

const OfferedButton* FindButton(const ScriptRun& run, const std::string& name) {
  const auto found = std::find_if(run.popup.begin(), run.popup.end(),
                                  [&](const OfferedButton& b) { return b.name == name; });
  return found == run.popup.end() ? nullptr : &*found;
}

std::string PopupButtons(const ScriptRun& run) {
  std::vector<std::string> names;
  for (const OfferedButton& button : run.popup) names.push_back(button.name);
  return names.empty() ? "none" : Join(" ", names);
}

void ExpectPopupNone(ScriptRun& run, const Statement& statement) {
  run.Check(statement, run.popup.empty(), "popup buttons", "none", PopupButtons(run));
}

void ExpectPopupMissing(ScriptRun& run, const Statement& statement) {
  const std::string& name = statement.Text("NAME");
  run.Check(statement, FindButton(run, name) == nullptr, "popup buttons", "no " + name,
            PopupButtons(run));
}

void ExpectPopupButton(ScriptRun& run, const Statement& statement) {
  const OfferedButton* const button = FindButton(run, statement.Text("NAME"));
  const std::string what = "popup button " + statement.Text("NAME");
  if (button == nullptr) {
    run.Check(statement, false, what, "a button", "only " + PopupButtons(run));
    return;
  }
  const auto shown = [](const std::string& label, const std::string& state) {
    return Quoted(label) + " " + state;
  };
  const std::string wanted = shown(statement.Text("TEXT"), statement.Text("STATE"));
  const bool whichever = statement.Text("STATE") == "not_available" && !button->available();
  const std::string got =
      shown(button->label, whichever ? "not_available" : StateWord(button->state));
  run.Check(statement, wanted == got, what, wanted, got);
}

void ExpectPopupOrder(ScriptRun& run, const Statement& statement) {
  const std::string wanted = Join(" ", statement.Texts("NAME"));
  run.Check(statement, wanted == PopupButtons(run), "popup buttons", wanted, PopupButtons(run));
}

void ExpectRegistered(ScriptRun& run, const Statement& statement) {
  const std::string got = FindCommand(run, statement) != nullptr ? "registered" : "missing";
  run.Check(statement, got == statement.Text("STATE"), statement.Text("NAME"),
            statement.Text("STATE"), got);
}

void CheckNumber(ScriptRun& run, const Statement& statement, const std::string& what, int got) {
  run.Check(statement, got == statement.Number("N"), statement.Text("NAME") + " " + what,
            statement.Text("N"), std::to_string(got));
}

void ExpectRegistrations(ScriptRun& run, const Statement& statement) {
  CheckNumber(run, statement, "registrations", CommandAt(run, statement).registrations);
}

void ExpectPriority(ScriptRun& run, const Statement& statement) {
  CheckNumber(run, statement, "priority", CommandAt(run, statement).priority);
}

void ExpectDesignated(ScriptRun& run, const Statement& statement) {
  const std::string got = CommandAt(run, statement).designated ? "designated" : "not_designated";
  run.Check(statement, got == statement.Text("STATE"), statement.Text("NAME"),
            statement.Text("STATE"), got);
}

void ExpectIcon(ScriptRun& run, const Statement& statement) {
  const std::string& icon = CommandAt(run, statement).icon;
  run.CheckText(statement, "icon", statement.Text("FILE"), icon);
}

// The button of the plug-in's menus that runs the command.
const MenuButton& ButtonOf(ScriptRun& run, const Statement& statement) {
  const Command& command = CommandAt(run, statement);
  for (const Menu& menu : run.host.commands.menus) {
    for (const MenuButton& button : menu.buttons) {
      if (button.command == &command) return button;
    }
  }
  throw ScriptError("no menu shows " + command.name);
}

void ExpectHelpKey(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "help key", statement.Text("TEXT"), ButtonOf(run, statement).help_key);
}

void ExpectCommandLabel(ScriptRun& run, const Statement& statement) {
  const MenuButton& button = ButtonOf(run, statement);
  run.CheckText(statement, "label", statement.Text("TEXT"),
                MenuLabel(button.label_key, button.message_file));
}

void ExpectCommandHelp(ScriptRun& run, const Statement& statement) {
  const MenuButton& button = ButtonOf(run, statement);
  run.CheckText(statement, "help", statement.Text("TEXT"),
                MenuLabel(button.help_key, button.message_file));
}

Menu& MenuAt(ScriptRun& run, const Statement& statement) {
  run.EnsureStarted();
  Menu* const menu = run.host.commands.FindMenu(statement.Text("NAME"));
  if (menu == nullptr) throw ScriptError("there is no menu " + statement.Text("NAME"));
  return *menu;
}

void ExpectMenuLabel(ScriptRun& run, const Statement& statement) {
  const Menu& menu = MenuAt(run, statement);
  run.CheckText(statement, "menu label", statement.Text("TEXT"),
                MenuLabel(menu.label_key, menu.message_file));
}

void ExpectMenuAfter(ScriptRun& run, const Statement& statement) {
  const Menu* const menu = &MenuAt(run, statement);
  const std::vector<Menu>& menus = run.host.commands.menus;
  const std::string before = menu == menus.data() ? "nothing" : (menu - 1)->name;
  run.CheckText(statement, "menu before " + menu->name, statement.Text("OTHER"), before);
}

void ExpectMenuMissing(ScriptRun& run, const Statement& statement) {
  run.EnsureStarted();
  const Menu* const menu = run.host.commands.FindMenu(statement.Text("NAME"));
  const size_t buttons = menu == nullptr ? 0 : menu->buttons.size();
  run.Check(statement, buttons == 0, "menu " + statement.Text("NAME"), "none",
            std::to_string(buttons) + " buttons");
}

void ExpectMenuCount(ScriptRun& run, const Statement& statement) {
  CheckNumber(run, statement, "buttons", static_cast<int>(MenuAt(run, statement).buttons.size()));
}

void ExpectMenuButton(ScriptRun& run, const Statement& statement) {
  const Menu& menu = MenuAt(run, statement);
  const auto at = static_cast<size_t>(statement.Number("NTH"));
  const std::string got =
      at > menu.buttons.size() ? "(no such button)" : menu.buttons[at - 1].command->name;
  run.CheckText(statement, menu.name + " button " + statement.Text("NTH"),
                statement.Text("COMMAND"), got);
}

// As the plug-in has named them, which no user sees.
void ExpectMenuNames(ScriptRun& run, const Statement& statement) {
  const Menu& menu = MenuAt(run, statement);
  std::vector<std::string> names;
  for (const MenuButton& button : menu.buttons) names.push_back(button.name);
  run.CheckText(statement, menu.name + " buttons", Join(" ", statement.Texts("BUTTON")),
                Join(" ", names));
}

void ExpectNotification(ScriptRun& run, const Statement& statement) {
  run.EnsureStarted();
  const auto& set = run.host.commands.notifications;
  const auto found = set.find(kNotifyPopupCreate);
  const bool registered = found != set.end() && found->second != nullptr;
  const std::string got = registered ? "registered" : "missing";
  run.Check(statement, got == statement.Text("STATE"), "popup notification",
            statement.Text("STATE"), got);
}

// clang-format off
constexpr StatementForm kExpectRegistryForms[] = {
    {"expect access COMMAND is STATE:available|unavailable",      kTopPlace, &ExpectAccess},
    {"expect popup none",                                         kTopPlace, &ExpectPopupNone},
    {"expect popup button NAME missing",                          kTopPlace, &ExpectPopupMissing},
    {"expect popup button NAME label TEXT "
     "STATE:available|not_available|unavailable|not_offered",     kTopPlace, &ExpectPopupButton},
    {"expect popup order NAME...",                                kTopPlace, &ExpectPopupOrder},
    {"expect command NAME STATE:registered|missing",              kTopPlace, &ExpectRegistered},
    {"expect command NAME registrations N",                       kTopPlace, &ExpectRegistrations},
    {"expect command NAME priority N",                            kTopPlace, &ExpectPriority},
    {"expect command NAME STATE:designated|not_designated",       kTopPlace, &ExpectDesignated},
    {"expect command NAME icon FILE",                             kTopPlace, &ExpectIcon},
    {"expect command NAME help_key TEXT",                         kTopPlace, &ExpectHelpKey},
    {"expect command NAME label TEXT",                            kTopPlace, &ExpectCommandLabel},
    {"expect command NAME help TEXT",                             kTopPlace, &ExpectCommandHelp},
    {"expect menu NAME label TEXT",                               kTopPlace, &ExpectMenuLabel},
    {"expect menu NAME after OTHER",                              kTopPlace, &ExpectMenuAfter},
    {"expect menu NAME missing",                                  kTopPlace, &ExpectMenuMissing},
    {"expect menu NAME buttons N",                                kTopPlace, &ExpectMenuCount},
    {"expect menu NAME button NTH is COMMAND",                    kTopPlace, &ExpectMenuButton},
    {"expect menu NAME names BUTTON...",                          kTopPlace, &ExpectMenuNames},
    {"expect notification popup_create STATE:registered|missing", kTopPlace, &ExpectNotification},
};
// clang-format on

}  // namespace

StatementForms RegistryExpectations() {
  return kExpectRegistryForms;
}

}  // namespace wb
