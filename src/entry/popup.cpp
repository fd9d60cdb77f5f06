// Popup entries, in two stages of one notification.
#include "entry/popup.h"

#include <string>
#include <string_view>

#include "entry/access.h"
#include "entry/command_table.h"
#include "entry/menu.h"
#include "entry/popup_access.h"
#include "frame/commands/open_drw.h"
#include "frame/guard/shield.h"
#include "frame/text/fixed_text.h"
#include "frame/text/text.h"
#include "toolkit/message.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr int kPopupCommandPriority = 5;
constexpr char kActionMenu[] = "ActionMenu";
constexpr std::string_view kSelectedObjectPopup = "Sel Obj Menu";
constexpr char kOpenDrawing[] = "QmOpenDrw";
constexpr char kOpenDrawingHelp[] = "QmOpenDrw_Help";

struct PopupEntry {
  const char* command;
  const wchar_t* menu_button;
  const wchar_t* label;
  AccessRule rule;
  ProPopupAccessFn access;
};

// clang-format off
constexpr PopupEntry kPopupEntries[] = {
    {"QmIsolate",     L"独立显示",         L"独立显示(qm)",     AccessRule::kAssemblyMode,       &DisplayEntryAccess},
    {"QmHideReverse", L"反向隐藏",         L"反转显示(qm)",     AccessRule::kAssemblyMode,       &DisplayEntryAccess},
    {"QmShowAllComp", L"全部显示",         L"全部显示(qm)",     AccessRule::kAssemblyMode,       &DisplayEntryAccess},
    {"QmMdlNameCopy", L"复制模型名称(qm)", L"复制模型名称(qm)", AccessRule::kPartOrAssemblyMode, &NameEntryAccess},
    {"QmMdlRename",   L"快速重命名(qm)",   L"快速重命名(qm)",   AccessRule::kPartOrAssemblyMode, &NameEntryAccess},
};
// clang-format on

// Id of a command registered now, or at an earlier popup when the host refuses it a second time.
uiCmdCmdId Registered(const char* name, uiCmdCmdActFn action, int priority, AccessRule rule) {
  uiCmdCmdId command = nullptr;
  if (Ok(ProCmdActionAdd(name, action, priority, AccessFunction(rule), PRO_B_FALSE, PRO_B_FALSE,
                         &command))) {
    return command;
  }
  command = nullptr;
  return Ok(ProCmdCmdIdFind(name, &command)) ? command : nullptr;
}

void AddToActionMenu(const char* button, const char* label, const char* help, uiCmdCmdId command) {
  std::wstring menu_file = kMenuFile;
  ProMenubarmenuPushbuttonAdd(kActionMenu, button, label, help, nullptr, PRO_B_TRUE, command,
                              menu_file.data());
}

void SetUpEntry(const PopupEntry& entry) {
  const std::size_t index = CommandRowOf(entry.command);
  const CommandRow& row = CommandTable()[index];
  const uiCmdCmdId command =
      Registered(row.name, CommandFunction(index), kPopupCommandPriority, entry.rule);
  if (command == nullptr) return;
  // Button names are narrow; where the code page lacks Chinese they would all read "????".
  const std::string button = ToAnsiExactly(entry.menu_button).value_or(row.name);
  AddToActionMenu(button.c_str(), row.name, row.help, command);
}

void AppendEntry(ProPopupMenuId popup, const PopupEntry& entry) {
  uiCmdCmdId command = nullptr;
  if (!Ok(ProCmdCmdIdFind(entry.command, &command)) || command == nullptr) return;
  std::wstring label = entry.label;
  ProPopupmenuButtonAdd(popup, PRO_VALUE_UNUSED, entry.command, label.data(), label.data(), command,
                        entry.access, nullptr);
}

int RunOpenDrawing(uiCmdCmdId, uiCmdValue*, void*) noexcept {
  return RunCommand(kOpenDrawing, &QmOpenDrw);
}

// The text of a key of the menu file; the key itself when the file lacks it.
std::wstring MenuText(const char* key) {
  std::wstring menu_file = kMenuFile;
  ProLine line = {};
  const ProError status = ProMessageToBuffer(line, menu_file.data(), key);
  const std::wstring_view text = FixedText(line);
  return Ok(status) && !text.empty() ? std::wstring(text) : FromAnsi(key);
}

void AppendOpenDrawing(ProPopupMenuId popup) {
  const uiCmdCmdId command = Registered(kOpenDrawing, &RunOpenDrawing, kMenuCommandPriority,
                                        AccessRule::kPartOrAssemblyMode);
  if (command == nullptr) return;
  std::wstring label = MenuText(kOpenDrawing);
  std::wstring help = MenuText(kOpenDrawingHelp);
  ProPopupmenuButtonAdd(popup, PRO_VALUE_UNUSED, kOpenDrawing, label.data(), help.data(), command,
                        &OpenDrawingEntryAccess, nullptr);
  AddToActionMenu(kOpenDrawing, kOpenDrawing, kOpenDrawingHelp, command);
}

ProError BuildPopup(char* name) {
  if (name == nullptr || name != kSelectedObjectPopup) return PRO_TK_NO_ERROR;
  ProPopupMenuId popup = nullptr;
  if (!Ok(ProPopupmenuIdGet(name, &popup))) return PRO_TK_NO_ERROR;
  for (const PopupEntry& entry : kPopupEntries) AppendEntry(popup, entry);
  AppendOpenDrawing(popup);
  return PRO_TK_NO_ERROR;
}

void Listen(ProPopupCreateAction action) {
  // The host takes all kinds of notification callbacks as one general type.
  ProNotificationSet(kNotifyPopupCreate,
                     reinterpret_cast<ProFunction>(reinterpret_cast<void (*)()>(action)));
}

ProError SetUpPopup(char*) {
  for (const PopupEntry& entry : kPopupEntries) SetUpEntry(entry);
  Listen(&Shielded<&BuildPopup>::Call);
  return PRO_TK_NO_ERROR;
}

}  // namespace

void ListenForPopup() {
  Listen(&Shielded<&SetUpPopup>::Call);
}

}  // namespace qm
