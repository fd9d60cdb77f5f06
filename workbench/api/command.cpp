// Host functions for commands, menus, popup menus and notifications.
#include <algorithm>
#include <initializer_list>

#include "workbench/api/message.h"

namespace wb {
namespace {

constexpr int kMaxPriority = 999;

struct CommandIn {
  uiCmdCmdId id;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(id)); }
  Command& Look(const Call& call) const {
    return *static_cast<Command*>(call.Look(id, HandleKind::kCommand).object);
  }
};

struct PriorityIn {
  int priority;
  std::string Describe() const { return DescribeArgument(priority); }
  int Look(const Call& call) const {
    if (priority < 0 || priority > kMaxPriority) {
      call.Fail("priority " + std::to_string(priority) + " is outside 0 to 999");
    }
    return priority;
  }
};

// The neighbour of a menu or button; may be left out.
struct NeighbourIn : MenuNameIn {
  explicit NeighbourIn(const char* neighbour) : MenuNameIn(neighbour, "neighbour") {}
  std::optional<std::string> Look(const Call& call) const {
    if (text == nullptr) return std::nullopt;
    return MenuNameIn::Look(call);
  }
};

bool HasMessages(const Call& call, const std::string& file,
                 std::initializer_list<std::string> keys) {
  return std::ranges::all_of(
      keys, [&](const std::string& key) { return FindMessage(call, file, key) != nullptr; });
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
ProError InsertBeside(std::vector<Item>& items, Item item,
                      const std::optional<std::string>& neighbour, bool after) {
  const auto same = [&](const std::string& name) {
    return std::find_if(items.begin(), items.end(),
                        [&](const Item& other) { return other.name == name; });
  };
  if (same(item.name) != items.end()) return PRO_TK_E_FOUND;
  auto place = after ? items.end() : items.begin();
  if (neighbour) {
    place = same(*neighbour);
    if (place == items.end()) return PRO_TK_E_NOT_FOUND;
    if (after) ++place;
  }
  items.insert(place, std::move(item));
  return PRO_TK_NO_ERROR;
}

// The host's ids are numbers: only the lower half of the place is filled, as by a host that takes
// it for an int.
int NumberOf(ProPopupMenuId handle) {
  return static_cast<int>(reinterpret_cast<intptr_t>(handle));
}

// A popup that is being created.
struct PopupIn {
  ProPopupMenuId handle;
  std::string Describe() const { return DescribeArgument(NumberOf(handle)); }
  Popup& Look(const Call& call) const {
    const int id = NumberOf(handle);
    Popup* const popup = call.host.commands.FindPopup(id);
    if (popup == nullptr) call.Fail("there is no popup menu with id " + std::to_string(id));
    if (id != call.host.commands.popup_being_created) {
      call.Fail("popup \"" + popup->name + "\" is changed while it is not being created");
    }
    return *popup;
  }
};

void CheckPosition(const Call& call, const Popup& popup, int position) {
  const int count = static_cast<int>(popup.buttons.size());
  if (position >= PRO_VALUE_UNUSED && position <= count) return;
  call.Fail("position " + std::to_string(position) + " in a popup of " + std::to_string(count) +
            " buttons");
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
  return Crossing(__func__, MenuNameIn(name, "command name"), CallbackIn(action, "action"),
                  PriorityIn{priority}, CallbackIn(access, "access function"), in_non_active_window,
                  in_accessory_window, Out(command, "command place"))
      .Run([](const Call& call, const std::string& text, uiCmdCmdActFn act, int rank,
              uiCmdAccessFn ask, ProBoolean, ProBoolean, uiCmdCmdId& place) {
        const bool again = call.host.commands.Find(text) != nullptr;
        if (again && call.host.habits.second_registration_fails) return PRO_TK_E_FOUND;
        Command& registered = Registered(call, text);
        registered.action = reinterpret_cast<void*>(act);
        registered.access = reinterpret_cast<void*>(ask);
        registered.priority = rank;
        place = static_cast<uiCmdCmdId>(registered.handle);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProCmdIconSet(uiCmdCmdId command, const char* icon_file) {
  return Crossing(__func__, CommandIn{command},
                  NarrowIn{icon_file, "icon file", PRO_FILE_NAME_SIZE})
      .Run([](const Call& call, Command& target, const std::string& file) {
        if (!std::filesystem::is_regular_file(call.host.ResourceFile(PathFromUtf8(file)))) {
          return PRO_TK_E_NOT_FOUND;
        }
        target.icon = file;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProCmdDesignate(uiCmdCmdId command, const char* label, const char* help,
                         const char* description, wchar_t* message_file) {
  return Crossing(__func__, CommandIn{command}, MessageKeyIn(label), MessageKeyIn(help),
                  MessageKeyIn(description), MessageFileIn{message_file})
      .Run([](const Call& call, Command& target, const std::string& label_key,
              const std::string& help_key, const std::string& description_key,
              const std::string& file) {
        if (!HasMessages(call, file, {label_key, help_key, description_key})) {
          return PRO_TK_MSG_NOT_FOUND;
        }
        target.designated = true;
        target.label_key = label_key;
        target.help_key = help_key;
        target.description_key = description_key;
        target.message_file = file;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProCmdCmdIdFind(const char* name, uiCmdCmdId* command) {
  return Crossing(__func__, MenuNameIn(name, "command name"), Out(command, "command place"))
      .Run([](const Call& call, const std::string& wanted, uiCmdCmdId& place) {
        const Command* const found = call.host.commands.Find(wanted);
        if (found == nullptr) return PRO_TK_E_NOT_FOUND;
        place = static_cast<uiCmdCmdId>(found->handle);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProMenubarMenuAdd(const char* menu, const char* label, const char* neighbour,
                           ProBoolean add_after, wchar_t* message_file) {
  return Crossing(__func__, MenuNameIn(menu, "menu name"), MessageKeyIn(label),
                  NeighbourIn(neighbour), add_after, MessageFileIn{message_file})
      .Run([](const Call& call, const std::string& name, const std::string& key,
              const std::optional<std::string>& beside, ProBoolean after, const std::string& file) {
        if (!HasMessages(call, file, {key})) return PRO_TK_MSG_NOT_FOUND;
        return InsertBeside(call.host.commands.menus, Menu{name, key, file, {}}, beside,
                            after != PRO_B_FALSE);
      });
}

ProError ProMenubarmenuPushbuttonAdd(const char* menu, const char* button, const char* label,
                                     const char* help, const char* neighbour, ProBoolean add_after,
                                     uiCmdCmdId command, wchar_t* message_file) {
  return Crossing(__func__, MenuNameIn(menu, "menu name"), MenuNameIn(button, "button name"),
                  MessageKeyIn(label), MessageKeyIn(help), NeighbourIn(neighbour), add_after,
                  CommandIn{command}, MessageFileIn{message_file})
      .Run([](const Call& call, const std::string& parent_name, const std::string& name,
              const std::string& label_key, const std::string& help_key,
              const std::optional<std::string>& beside, ProBoolean after, Command& target,
              const std::string& file) {
        Menu* const parent = call.host.commands.FindMenu(parent_name);
        if (parent == nullptr) return PRO_TK_E_NOT_FOUND;
        if (!HasMessages(call, file, {label_key, help_key})) return PRO_TK_MSG_NOT_FOUND;
        return InsertBeside(parent->buttons, MenuButton{name, label_key, help_key, file, &target},
                            beside, after != PRO_B_FALSE);
      });
}

ProError ProPopupmenuIdGet(const char* menu, ProPopupMenuId* id) {
  return Crossing(__func__, MenuNameIn(menu, "popup name"), Out(id, "id place"))
      .Run([](const Call& call, const std::string& name, ProPopupMenuId& place) {
        const Popup* const popup = call.host.commands.FindPopup(name);
        if (popup == nullptr || popup->id == 0) return PRO_TK_E_NOT_FOUND;
        std::memcpy(&place, &popup->id, sizeof(popup->id));
        return PRO_TK_NO_ERROR;
      });
}

ProError ProPopupmenuButtonAdd(ProPopupMenuId menu, int position, const char* button,
                               wchar_t* label, wchar_t* help, uiCmdCmdId command,
                               ProPopupAccessFn access, ProAppData data) {
  return Crossing(__func__, PopupIn{menu}, position, MenuNameIn(button, "button name"),
                  TextIn{label, PRO_LINE_SIZE, "label"}, TextIn{help, PRO_LINE_SIZE, "help text"},
                  CommandIn{command}, CallbackIn(access, "access function"), DataIn{data})
      .Run([](const Call& call, Popup& popup, int at, const std::string& name,
              const std::string& shown, const std::string& help_text, Command& target,
              ProPopupAccessFn ask, void* own) {
        CheckPosition(call, popup, at);
        return AddPopupButton(popup, at,
                              {name, shown, help_text, &target, reinterpret_cast<void*>(ask), own});
      });
}

ProError ProNotificationSet(ProNotifyType type, ProFunction callback) {
  return Crossing(__func__, type, callback)
      .Run([](const Call& call, ProNotifyType kind, ProFunction function) {
        if (kind != kNotifyPopupCreate) {
          throw NotModelled{"notification type " + std::to_string(kind)};
        }
        std::map<int, void*>& notifications = call.host.commands.notifications;
        if (function == nullptr) {
          return notifications.erase(kind) == 1 ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND;
        }
        notifications[kind] = reinterpret_cast<void*>(function);
        return PRO_TK_NO_ERROR;
      });
}
