// The command table: one row a command in registration order, which is also the menu's order.
// Registration, popup menu and documentation all walk it.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "entry/access_rules.h"
#include "toolkit/command.h"

namespace qm {

struct CommandRow {
  // Action name, push-button name, label key and description key.
  const char* name;
  const char* help;
  const char* icon;
  ProError (*action)();
  AccessRule access;
  // Offered for placement on the ribbon.
  bool designated;
};

std::span<const CommandRow> CommandTable();

// The function to register for a row: its action behind the command shield.
uiCmdCmdActFn CommandFunction(std::size_t row);

// Row of a command that is in the table.
std::size_t CommandRowOf(std::string_view name);

}  // namespace qm
