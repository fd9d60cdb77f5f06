// Every statement of the script language: how it reads and where it may stand. The parser, the
// runner's tables of handlers and the check of the manual all walk this list.
#pragma once

#include <span>

namespace wb {

// Where a statement may stand; values combine.
enum ScriptPlace : unsigned {
  kTopPlace = 1,     // the script itself
  kAnswerPlace = 2,  // answers to a running command
  kDialogPlace = 4,  // what the user does and sees in a dialog
};

struct StatementForm {
  const char* id;
  const char* pattern;
  unsigned places;     // where it may stand
  unsigned block = 0;  // place of the statements up to its `end`; 0: it has none
};

// In order of preference: the first form that fits a line is taken.
std::span<const StatementForm> StatementForms();

}  // namespace wb
