// Host functions for commands, menus, popup menus and notifications.
#include <algorithm>

#include "workbench/api/message.h"

namespace wb {
namespace {

constexpr int kMaxPriority = 999;

// Names of commands, menus and buttons have at most 31 characters.
std::string NameArgument(const Call& call, const char* name, const char* what) {
  const std::string text = call.Narrow(name, PRO_NAME_SIZE, what);
  if (text.empty()) call.Fail(std::string("empty ") + what);
  return text;
}

Command& CommandAt(const Call& call, uiCmdCmdId id) {
  const HandleTable::Found found = call.host.handles.Look(id, HandleKind::kCommand);
  if (found.object == nullptr) call.Fail(found);
  return *static_cast<Command*>(found.object);
}

template <typename Function>
void* CallbackArgument(const Call& call, Function* function, const char* what) {
  if (function == nullptr) call.Fail(std::string("null ") + what);
  return reinterpret_cast<void*>(function);
}

Command& Registered(const Call& call, const std::string& name) {
  Commands& commands = call.host.commands;
  Command* command = commands.Find(name);
  if (command == nullptr) {
    command = &commands.commands.emplace_back();
    command->name = name;
    command->handle = call.host.handles.Give(HandleKind::kCommand, command);
  }
  ++command->registrations;
  return *command;
}

// Puts `item` beside the one named `neighbour`; without a neighbour at the end or the beginning.
template <typename Item>
ProError InsertBeside(std::vector<Item>& items, Item item, const char* neighbour, bool after) {
  const auto same = [&](const std::string& name) {
    return std::find_if(items.begin(), items.end(),
                        [&](const Item& other) { return other.name == name; });
  };
  if (same(item.name) != items.end()) return PRO_TK_E_FOUND;
  auto place = after ? items.end() : items.begin();
  if (neighbour != nullptr) {
    place = same(FromAnsi(neighbour));
    if (place == items.end()) return PRO_TK_E_NOT_FOUND;
    if (after) ++place;
  }
  items.insert(place, std::move(item));
  return PRO_TK_NO_ERROR;
}

const char* NeighbourArgument(const Call& call, const char* neighbour) {
  if (neighbour != nullptr) NameArgument(call, neighbour, "neighbour");
  return neighbour;
}

Popup& PopupAt(const Call& call, ProPopupMenuId id) {
  Popup* const popup = call.host.commands.FindPopup(id);
  if (popup == nullptr) call.Fail("there is no popup menu with id " + std::to_string(id));
  if (id != call.host.commands.popup_being_created) {
    call.Fail("popup \"" + popup->name + "\" is changed while it is not being created");
  }
  return *popup;
}

ProError AddPopupButton(Popup& popup, int position, PopupButton button) {
  for (const PopupButton& other : popup.buttons) {
    if (other.name == button.name) return PRO_TK_E_FOUND;
  }
  const auto place =
      position == PRO_VALUE_UNUSED ? popup.buttons.end() : popup.buttons.begin() + position;
  popup.buttons.insert(place, std::move(button));
  return PRO_TK_NO_ERROR;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProCmdActionAdd(const char* name, uiCmdCmdActFn action, uiCmdPriority priority,
                         uiCmdAccessFn access, ProBoolean in_non_active_window,
                         ProBoolean in_accessory_window, uiCmdCmdId* command) {
  return Crossing("ProCmdActionAdd", name, action, priority, access, in_non_active_window,
                  in_accessory_window, Out(command))
      .Run([&](Call& call) {
        const std::string text = NameArgument(call, name, "command name");
        if (priority < 0 || priority > kMaxPriority) {
          call.Fail("priority " + std::to_string(priority) + " is outside 0 to 999");
        }
        uiCmdCmdId& place = call.Place(command, "command place");
        void* const action_pointer = CallbackArgument(call, action, "action");
        void* const access_pointer = CallbackArgument(call, access, "access function");
        Command& registered = Registered(call, text);
        registered.action = action_pointer;
        registered.access = access_pointer;
        registered.priority = priority;
        place = static_cast<uiCmdCmdId>(registered.handle);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProCmdIconSet(uiCmdCmdId command, const char* icon_file) {
  return Crossing("ProCmdIconSet", static_cast<const void*>(command), icon_file)
      .Run([&](Call& call) {
        Command& target = CommandAt(call, command);
        const std::string file = call.Narrow(icon_file, PRO_FILE_NAME_SIZE, "icon file");
        const std::filesystem::path path =
            call.host.install_folder / "text" / "resource" / PathFromUtf8(file);
        if (!std::filesystem::is_regular_file(path)) return PRO_TK_E_NOT_FOUND;
        target.icon = file;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProCmdDesignate(uiCmdCmdId command, const char* label, const char* help,
                         const char* description, wchar_t* message_file) {
  return Crossing("ProCmdDesignate", static_cast<const void*>(command), label, help, description,
                  message_file)
      .Run([&](Call& call) {
        Command& target = CommandAt(call, command);
        const std::string file = MessageFileArgument(call, message_file);
        for (const char* key : {label, help, description}) {
          if (MessageArgument(call, file, key) == nullptr) return PRO_TK_MSG_NOT_FOUND;
        }
        target.designated = true;
        target.label_key = FromAnsi(label);
        target.help_key = FromAnsi(help);
        target.description_key = FromAnsi(description);
        target.message_file = file;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProCmdCmdIdFind(const char* name, uiCmdCmdId* command) {
  return Crossing("ProCmdCmdIdFind", name, Out(command)).Run([&](Call& call) {
    const Command* const found = call.host.commands.Find(NameArgument(call, name, "command name"));
    uiCmdCmdId& place = call.Place(command, "command place");
    if (found == nullptr) return PRO_TK_E_NOT_FOUND;
    place = static_cast<uiCmdCmdId>(found->handle);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProMenubarMenuAdd(const char* menu, const char* label, const char* neighbour,
                           ProBoolean add_after, wchar_t* message_file) {
  return Crossing("ProMenubarMenuAdd", menu, label, neighbour, add_after, message_file)
      .Run([&](Call& call) {
        const std::string name = NameArgument(call, menu, "menu name");
        const std::string file = MessageFileArgument(call, message_file);
        const char* const beside = NeighbourArgument(call, neighbour);
        if (MessageArgument(call, file, label) == nullptr) return PRO_TK_MSG_NOT_FOUND;
        return InsertBeside(call.host.commands.menus, Menu{name, FromAnsi(label), file, {}}, beside,
                            add_after != PRO_B_FALSE);
      });
}

ProError ProMenubarmenuPushbuttonAdd(const char* menu, const char* button, const char* label,
                                     const char* help, const char* neighbour, ProBoolean add_after,
                                     uiCmdCmdId command, wchar_t* message_file) {
  return Crossing("ProMenubarmenuPushbuttonAdd", menu, button, label, help, neighbour, add_after,
                  static_cast<const void*>(command), message_file)
      .Run([&](Call& call) {
        Menu* const parent = call.host.commands.FindMenu(NameArgument(call, menu, "menu name"));
        const std::string name = NameArgument(call, button, "button name");
        Command& target = CommandAt(call, command);
        const std::string file = MessageFileArgument(call, message_file);
        const char* const beside = NeighbourArgument(call, neighbour);
        if (parent == nullptr) return PRO_TK_E_NOT_FOUND;
        for (const char* key : {label, help}) {
          if (MessageArgument(call, file, key) == nullptr) return PRO_TK_MSG_NOT_FOUND;
        }
        return InsertBeside(parent->buttons,
                            MenuButton{name, FromAnsi(label), FromAnsi(help), file, &target},
                            beside, add_after != PRO_B_FALSE);
      });
}

ProError ProPopupmenuIdGet(const char* menu, ProPopupMenuId* id) {
  return Crossing("ProPopupmenuIdGet", menu, Out(id)).Run([&](Call& call) {
    const Popup* const popup = call.host.commands.FindPopup(NameArgument(call, menu, "popup name"));
    ProPopupMenuId& place = call.Place(id, "id place");
    if (popup == nullptr || popup->id == 0) return PRO_TK_E_NOT_FOUND;
    place = popup->id;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProPopupmenuButtonAdd(ProPopupMenuId menu, int position, const char* button,
                               wchar_t* label, wchar_t* help, uiCmdCmdId command,
                               ProPopupAccessFn access, ProAppData data) {
  return Crossing("ProPopupmenuButtonAdd", menu, position, button, label, help,
                  static_cast<const void*>(command), access, data)
      .Run([&](Call& call) {
        Popup& popup = PopupAt(call, menu);
        const int count = static_cast<int>(popup.buttons.size());
        if (position < PRO_VALUE_UNUSED || position > count) {
          call.Fail("position " + std::to_string(position) + " in a popup of " +
                    std::to_string(count) + " buttons");
        }
        PopupButton added;
        added.name = NameArgument(call, button, "button name");
        added.label = call.Text(label, PRO_LINE_SIZE, "label");
        added.help = call.Text(help, PRO_LINE_SIZE, "help text");
        added.command = &CommandAt(call, command);
        added.access = CallbackArgument(call, access, "access function");
        added.data = data;
        return AddPopupButton(popup, position, std::move(added));
      });
}

ProError ProNotificationSet(ProNotifyType type, ProFunction callback) {
  return Crossing("ProNotificationSet", type, callback).Run([&](Call& call) {
    if (type != kNotifyPopupCreate) {
      throw NotModelled{"notification type " + std::to_string(type)};
    }
    std::map<int, void*>& notifications = call.host.commands.notifications;
    if (callback == nullptr) {
      return notifications.erase(type) == 1 ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND;
    }
    notifications[type] = reinterpret_cast<void*>(callback);
    return PRO_TK_NO_ERROR;
  });
}
