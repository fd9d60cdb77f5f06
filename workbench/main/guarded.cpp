// Exceptions of commands end here.
#include "workbench/main/guarded.h"

#include <cstdio>
#include <exception>

namespace wb {

int RunGuarded(int (*command)(const CommandArguments& arguments),
               const CommandArguments& arguments) {
  try {
    return command(arguments);
  } catch (const UsageError& error) {
    std::fprintf(stderr, "workbench: %s; \"workbench help\" lists the commands\n", error.what());
    return 2;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "workbench: %s\n", error.what());
    return 1;
  }
}

}  // namespace wb
