// Registers the command table and the popup entries with the host.
#include "entry/registration.h"

#include <string>

#include "entry/access.h"
#include "entry/command_table.h"
#include "entry/menu.h"
#include "entry/popup.h"
#include "frame/settings/config.h"
#include "frame/text/list_rules.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr char kMenu[] = "Menu";
constexpr char kMenuBefore[] = "Help";

void RegisterCommand(std::size_t index, const CommandRow& row, wchar_t* menu_file) {
  uiCmdCmdId command = nullptr;
  const ProError status =
      ProCmdActionAdd(row.name, CommandFunction(index), kMenuCommandPriority,
                      AccessFunction(row.access), PRO_B_FALSE, PRO_B_FALSE, &command);
  if (!Ok(status) || command == nullptr) return;
  ProMenubarmenuPushbuttonAdd(kMenu, row.name, row.name, row.help, nullptr, PRO_B_TRUE, command,
                              menu_file);
  ProCmdIconSet(command, row.icon);
  if (row.designated) ProCmdDesignate(command, row.name, row.help, row.name, menu_file);
}

}  // namespace

void RegisterCommands() {
  std::wstring menu_file = kMenuFile;
  ProMenubarMenuAdd(kMenu, kMenu, kMenuBefore, PRO_B_TRUE, menu_file.data());
  std::size_t index = 0;
  for (const CommandRow& row : CommandTable()) {
    RegisterCommand(index++, row, menu_file.data());
  }
}

void RegisterPopup() {
  const std::wstring setting =
      WithoutBlanks(ReadSetting(L"RmbDisable", kValueKey, TextFolderConfigPath(kConfigFile)));
  // Without the key there are no entries: deliberate, the shipped settings decide.
  if (setting == L"0") ListenForPopup();
}

}  // namespace qm
