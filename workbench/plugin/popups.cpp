// A right click: the popup is created, the plug-in fills it, and each button says whether it is
// offered.
#include "workbench/plugin/popups.h"

#include <cstring>
#include <stdexcept>

#include "workbench/host/loans.h"
#include "workbench/plugin/plugin_entry.h"

namespace wb {
namespace {

// The selection buffer as popup access functions get it: an array that stays the host's.
class BufferForAccess {
 public:
  BufferForAccess() : call_(TheHost(), "popup access", TheHost().trace.calls()) {
    const std::vector<PickedItem>& buffer = TheHost().session.selection_buffer;
    if (buffer.empty()) return;
    count_ = buffer.size();
    array_ =
        static_cast<ProSelection*>(NewArray(call_, static_cast<int>(count_), sizeof(ProSelection)));
    for (size_t i = 0; i < count_; ++i) array_[i] = NewSelection(call_, buffer[i]);
  }
  BufferForAccess(const BufferForAccess&) = delete;
  BufferForAccess& operator=(const BufferForAccess&) = delete;
  ~BufferForAccess() {
    if (array_ == nullptr) return;
    try {
      for (size_t i = 0; i < count_; ++i) FreeSelection(call_, array_[i]);
      FreeArray(call_, array_);
    } catch (const Misuse&) {
      TheHost().ReportBreach("popup access", "freed the selections that it was only shown");
    }
  }
  ProSelection* get() const { return array_; }

 private:
  Call call_;
  ProSelection* array_ = nullptr;
  size_t count_ = 0;
};

void TellPlugin(const std::string& name, int id) {
  Commands& commands = TheHost().commands;
  const auto found = commands.notifications.find(kNotifyPopupCreate);
  if (found == commands.notifications.end()) return;
  const auto action = reinterpret_cast<ProPopupCreateAction>(found->second);
  ProMenuName menu = {};
  std::strncpy(menu, name.c_str(), PRO_NAME_SIZE - 1);
  commands.popup_being_created = id;
  EnterPluginAndSettle("notification 72", [&] { action(menu); });
  commands.popup_being_created = 0;
}

int AskButton(const PopupButton& button) {
  int state = ACCESS_REMOVE;
  const auto access = reinterpret_cast<ProPopupAccessFn>(button.access);
  EnterPluginAndSettle("popup access of " + button.name, [&] {
    const BufferForAccess buffer;
    state = access(static_cast<uiCmdCmdId>(button.command->handle), button.data, buffer.get());
  });
  return state;
}

}  // namespace

std::vector<OfferedButton> FirePopup(const std::string& name) {
  Popup* const popup = TheHost().commands.CreatePopup(name);
  if (popup == nullptr) throw std::invalid_argument("the host has no popup \"" + name + "\"");
  TellPlugin(name, popup->id);
  std::vector<OfferedButton> offered;
  for (const PopupButton& button : popup->buttons) {
    offered.push_back(
        {button.name, button.label, button.help, button.command->name, AskButton(button)});
  }
  return offered;
}

std::string MenuLabel(const std::string& key, const std::string& file) {
  Host& host = TheHost();
  try {
    const MessageRecord* const record = host.messages.Find(MessagePath(host, file), key);
    return record == nullptr ? key : record->Text();
  } catch (const MessageFileError&) {
    return key;
  }
}

}  // namespace wb
