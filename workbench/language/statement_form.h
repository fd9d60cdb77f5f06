// A statement of the script language in one row: how it reads, where it may stand, what it does.
// The rows stand with the functions that carry them out; this room knows none of them.
#pragma once

#include <span>

namespace wb {

class ScriptRun;
struct Statement;

// Where a statement may stand; values combine.
enum ScriptPlace : unsigned {
  kTopPlace = 1,     // the script itself
  kAnswerPlace = 2,  // answers to a running command
  kDialogPlace = 4,  // what the user does and sees in a dialog
  kTopOrDialog = kTopPlace | kDialogPlace,
  kAnswerOrDialog = kAnswerPlace | kDialogPlace,
};

using StatementAction = void (*)(ScriptRun& run, const Statement& statement);
// Of an answer, which is taken when the plug-in asks for it.
constexpr StatementAction kWhenAsked = nullptr;

struct StatementForm {
  const char* pattern;
  unsigned places;  // where it may stand
  StatementAction action;
  unsigned block = 0;  // place of the statements up to its `end`; 0: it has none
};

// In order of preference: the first form that fits a line is taken.
using StatementForms = std::span<const StatementForm>;

}  // namespace wb
