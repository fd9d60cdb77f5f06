// The plug-in's user interface in the host: menu, commands, icons, ribbon, popup entries.
#pragma once

namespace qm {

// Adds the menu and every command in the table's order. A command that fails to register is
// simply missing.
void RegisterCommands();

// Asks for the popup entries when the setting "RmbDisable" is present and says "0".
void RegisterPopup();

}  // namespace qm
