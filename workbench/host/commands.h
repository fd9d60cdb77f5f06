// Commands, menus, popup menus and notifications that the plug-in has registered.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

namespace wb {

struct Command {
  std::string name;
  void* action = nullptr;  // uiCmdCmdActFn
  void* access = nullptr;  // uiCmdAccessFn
  int priority = 0;
  std::string icon;
  bool designated = false;
  std::string label_key, help_key, description_key, message_file;  // of the designation
  void* handle = nullptr;
  int registrations = 0;
};

struct MenuButton {
  std::string name;
  std::string label_key;
  std::string help_key;
  std::string message_file;
  Command* command = nullptr;
};

struct Menu {
  std::string name;
  std::string label_key;
  std::string message_file;
  std::vector<MenuButton> buttons;
};

struct PopupButton {
  std::string name;
  std::string label;
  std::string help;
  Command* command = nullptr;
  void* access = nullptr;  // ProPopupAccessFn
  void* data = nullptr;
};

struct Popup {
  int id = 0;  // 0: not created yet
  std::string name;
  std::vector<PopupButton> buttons;
};

struct Commands {
  Commands();  // with the host's own menus and popups

  std::deque<Command> commands;  // in registration order; addresses stay
  std::vector<Menu> menus;       // in menu-bar order
  std::vector<Popup> popups;
  std::map<int, void*> notifications;  // type -> callback
  int popup_being_created = 0;         // its id, while the notification runs

  Command* Find(const std::string& name);
  Menu* FindMenu(const std::string& name);
  Popup* FindPopup(const std::string& name);
  Popup* FindPopup(int id);
  // Empties the popup and gives it a new id; null: the host has no such popup.
  Popup* CreatePopup(const std::string& name);

 private:
  int next_popup_id_ = 1;
};

}  // namespace wb
