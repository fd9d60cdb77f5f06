// Collects the facts of a session.
#include "workbench/sweep/session_state.h"

#include <set>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/script/script_windows.h"
#include "workbench/session/model_facts.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

constexpr size_t kMostShown = 60;
constexpr int kBaseWindow = 0;
constexpr std::string_view kWideMark = "\xFF\xFE";

std::string NameOf(const Model* model) {
  return model == nullptr ? "nothing" : model->id.Text();
}

void AddModel(Model& model, SessionState* state) {
  const std::string name = model.id.Text() + " ";
  for (const auto& [path, value] : FactsOf(model)) (*state)[name + path] = value;
  (*state)[name + "modified"] = model.modified ? "yes" : "no";
  (*state)[name + "version"] = std::to_string(model.version);
  (*state)[name + "folder"] = PathToUtf8(model.folder);
  int link_number = 0;
  ForEachLink(model, [&](const ModelLink& link) {
    (*state)[name + "link " + std::to_string(++link_number)] = NameOf(link.model);
  });
}

std::string ShownIn(Session& session, int id) {
  const Window* const window = session.FindWindow(id);
  return window == nullptr ? "no window" : NameOf(window->model);
}

// By what they show: the numbers of windows go on from run to run.
void AddWindows(Session& session, SessionState* state) {
  for (const Window& window : session.windows()) {
    if (window.model != nullptr) (*state)["window of " + NameOf(window.model)] = "open";
  }
  (*state)["base window"] = ShownIn(session, kBaseWindow);
  (*state)["current window"] = ShownIn(session, session.current_window());
  (*state)["active model"] = NameOf(session.Active());
  (*state)["active window"] = ShownIn(session, session.active_window());
}

void AddSession(Session& session, SessionState* state) {
  for (const auto& model : session.models()) AddModel(*model, state);
  AddWindows(session, state);
  (*state)["working directory"] = PathToUtf8(session.working_directory());
  std::error_code error;
  (*state)["current folder"] = PathToUtf8(fs::current_path(error));
  std::string& selection = (*state)["selection"];
  for (const PickedItem& pick : session.selection_buffer) {
    selection += std::to_string(pick.type) + ":" + std::to_string(pick.id) + " of " +
                 NameOf(pick.owner) + " at";
    for (const int id : pick.path) selection += " " + std::to_string(id);
    selection += " of " + NameOf(pick.root) + "; ";
  }
}

std::string Decoded(const std::string& content) {
  if (!content.starts_with(kWideMark)) return content;
  std::u16string text;
  for (size_t i = kWideMark.size(); i + 1 < content.size(); i += 2) {
    text += static_cast<char16_t>(static_cast<unsigned char>(content[i]) |
                                  static_cast<unsigned char>(content[i + 1]) << 8);
  }
  return FromWide(std::wstring(text.begin(), text.end()));
}

// Entry by entry, since commands write single ones.
void AddSettings(const std::string& file, const std::string& content, SessionState* state) {
  std::string section;
  const std::string text = Decoded(content);
  for (size_t at = 0; at < text.size();) {
    const size_t end = std::min(text.find('\n', at), text.size());
    const std::string line = Trimmed(text.substr(at, end - at));
    at = end + 1;
    const size_t equals = line.find('=');
    if (line.starts_with("[")) section = line;
    if (equals == std::string::npos || line.starts_with(";")) continue;
    (*state)[file + " " + section + " " + Trimmed(line.substr(0, equals))] =
        line.substr(equals + 1);
  }
}

std::string Together(const std::vector<std::string>& words) {
  return Join(" ", words);
}

std::string CommandOf(const Command* command) {
  return command == nullptr ? "nothing" : command->name;
}

void AddCommands(const Commands& commands, SessionState* state) {
  for (const Command& command : commands.commands) {
    (*state)["command " + command.name] =
        Together({std::to_string(command.registrations), std::to_string(command.priority),
                  command.icon, command.designated ? "designated" : "", command.label_key,
                  command.help_key, command.description_key, command.message_file});
  }
}

void AddMenus(const Commands& commands, SessionState* state) {
  for (const Menu& menu : commands.menus) {
    std::string& fact = (*state)["menu " + menu.name] = menu.label_key + " " + menu.message_file;
    for (const MenuButton& button : menu.buttons) {
      fact += "; " + Together({button.name, button.label_key, button.help_key, button.message_file,
                               CommandOf(button.command)});
    }
  }
  for (const Popup& popup : commands.popups) {
    std::string& fact = (*state)["popup " + popup.name];
    for (const PopupButton& button : popup.buttons) {
      fact += Together({button.name, button.label, button.help, CommandOf(button.command)}) + "; ";
    }
  }
}

void AddRegistered(const Commands& commands, SessionState* state) {
  AddCommands(commands, state);
  AddMenus(commands, state);
  for (const auto& [type, callback] : commands.notifications) {
    (*state)["notification " + std::to_string(type)] = callback == nullptr ? "none" : "there";
  }
}

void AddFolder(const fs::path& folder, const std::string& prefix, const FileContents& contents,
               SessionState* state) {
  for (const auto& [path, content] : contents) {
    const fs::path below = path.lexically_relative(folder);
    const std::string file = prefix + PathToUtf8(below);
    if (IsFolder(path)) {
      (*state)["folder " + prefix + PathToUtf8(below.parent_path())] = "there";
    } else if (path.extension() == ".ini") {
      (*state)["file " + file] = "there";
      AddSettings(file, content, state);
    } else {
      (*state)["file " + file] = content;
    }
  }
}

}  // namespace

SessionState StateNow(Host& host, const std::vector<fs::path>& folders) {
  return StateNow(host, folders, ContentsOf(folders));
}

SessionState StateNow(Host& host, const std::vector<fs::path>& folders,
                      const FolderContents& contents) {
  SessionState state;
  AddSession(host.session, &state);
  for (const auto& [name, values] : host.options) state["option " + name] = Join(" ", values);
  AddRegistered(host.commands, &state);
  state["timers"] = std::to_string(host.windows.timers.size());
  state["clipboard"] = ClipboardText().value_or("");
  for (size_t i = 0; i < folders.size(); ++i) {
    const std::string prefix = i == 0 ? "" : PathToUtf8(folders[i].filename()) + "/";
    AddFolder(folders[i], prefix, contents[i], &state);
  }
  return state;
}

bool HaveSame(const std::string& name, const SessionState& a, const SessionState& b) {
  const auto in_a = a.find(name);
  const auto in_b = b.find(name);
  if (in_a == a.end() || in_b == b.end()) return (in_a == a.end()) == (in_b == b.end());
  return in_a->second == in_b->second;
}

std::vector<std::string> Differences(const SessionState& a, const SessionState& b) {
  std::set<std::string> names;
  for (const auto& state : {&a, &b}) {
    for (const auto& [name, value] : *state) names.insert(name);
  }
  std::vector<std::string> different;
  for (const std::string& name : names) {
    if (!HaveSame(name, a, b)) different.push_back(name);
  }
  return different;
}

std::vector<std::string> NotPutBack(const SessionState& before, const SessionState& now) {
  std::vector<std::string> complaints;
  for (const std::string& name : Differences(before, now)) {
    complaints.push_back("workbench: the sweep does not put back " + name);
  }
  return complaints;
}

std::string TextOfFact(const SessionState& state, const std::string& name) {
  const auto found = state.find(name);
  if (found == state.end()) return "nothing";
  if (found->second.size() <= kMostShown) return "\"" + found->second + "\"";
  return "a text of " + std::to_string(found->second.size()) + " bytes";
}

}  // namespace wb
