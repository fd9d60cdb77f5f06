// workbench-import: `workbench import` as a program of the machine it is built on, where large
// assemblies take seconds instead of minutes.
#include "workbench/main/guarded.h"
#include "workbench/main/subcommands.h"

int main(int argc, char** argv) {
  const auto as_it_is = [](const std::string& text) { return text; };
  return wb::RunGuarded(&wb::ImportCommand, wb::CommandArguments(argv + 1, argv + argc), as_it_is);
}
