// What the workbench's programs have in common: a command's exit code, and its complaint.
#pragma once

#include <string>

#include "workbench/base/command_line.h"

namespace wb {

using TextInOwnWords = std::string (*)(const std::string& text);

// Runs a command and says on the error channel, in the words of the user's machine, why it could
// not: 1 for a failure, 2 for a command line that cannot be obeyed.
int RunGuarded(int (*command)(const CommandArguments& arguments), const CommandArguments& arguments,
               TextInOwnWords own_words);

}  // namespace wb
