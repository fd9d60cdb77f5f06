// The host's own menus and popups, and look-ups among what was registered.
#include "workbench/host/commands.h"

#include <algorithm>

namespace wb {
namespace {

// The menu bar, and the menu of actions that is not on it.
constexpr const char* kHostMenus[] = {"File",     "Edit", "View",         "Insert",
                                      "Analysis", "Info", "Applications", "Utilities",
                                      "Window",   "Help", "ActionMenu"};

// The popup of selected objects, and others that the plug-in must leave alone.
constexpr const char* kHostPopups[] = {"Sel Obj Menu", "Model Tree Menu", "Drawing Sheet Menu"};

template <typename Items>
auto* Named(Items& items, const std::string& name) {
  const auto found =
      std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.name == name; });
  return found == items.end() ? nullptr : &*found;
}

}  // namespace

Commands::Commands() {
  for (const char* name : kHostMenus) menus.push_back({name, name, "", {}});
  for (const char* name : kHostPopups) popups.push_back({0, name, {}});
}

Command* Commands::Find(const std::string& name) {
  return Named(commands, name);
}

Menu* Commands::FindMenu(const std::string& name) {
  return Named(menus, name);
}

Popup* Commands::FindPopup(const std::string& name) {
  return Named(popups, name);
}

Popup* Commands::FindPopup(int id) {
  const auto found = std::find_if(popups.begin(), popups.end(),
                                  [&](const Popup& popup) { return popup.id == id; });
  return id == 0 || found == popups.end() ? nullptr : &*found;
}

Popup* Commands::CreatePopup(const std::string& name) {
  Popup* const popup = FindPopup(name);
  if (popup == nullptr) return nullptr;
  popup->id = next_popup_id_++;
  popup->buttons.clear();
  return popup;
}

}  // namespace wb
