// workbench-import: `workbench import` as a program of the machine it is built on, where large
// assemblies take seconds instead of minutes.
#include "workbench/main/guarded.h"
#include "workbench/main/subcommands.h"

int main(int argc, char** argv) {
  return wb::RunGuarded(&wb::ImportCommand, wb::CommandArguments(argv + 1, argv + argc));
}
