// Exceptions of commands end here.
#include "workbench/main/guarded.h"

#include <cstdio>
#include <exception>

namespace wb {

int RunGuarded(int (*command)(const CommandArguments& arguments), const CommandArguments& arguments,
               TextInOwnWords own_words) {
  try {
    return command(arguments);
  } catch (const UsageError& error) {
    std::fprintf(stderr, "workbench: %s; \"workbench help\" lists the commands\n",
                 own_words(error.what()).c_str());
    return 2;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "workbench: %s\n", own_words(error.what()).c_str());
    return 1;
  }
}

}  // namespace wb
