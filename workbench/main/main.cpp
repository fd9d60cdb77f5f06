// workbench.exe: tries the plug-in without a CAD seat.
#include <cstdio>

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"
#include "workbench/bench/bench.h"
#include "workbench/main/guarded.h"
#include "workbench/main/subcommands.h"
#include "workbench/reasons/own_path.h"

namespace wb {
namespace {

struct Subcommand {
  const char* name;
  const char* usage;
  int (*run)(const CommandArguments& arguments);
};

int Help(const CommandArguments&);

// clang-format off
constexpr Subcommand kSubcommands[] = {
    {"import",   "import FILE.stp DIR [--force]\n"
                 "    reads a STEP file and writes its models into DIR; with --force as next versions\n"
                 "    beside models of the same names", &ImportCommand},
    {"run",      "run SCRIPT... [--out DIR] [--report FILE.html] [--trace FILE] [--plugin DLL]\n"
                 "    [--install DIR] [--fault FUNCTION:NTH[:and:SECOND]:STATUS[:from_then_on]]\n"
                 "    [--other-habits] [--sampled-faults] [--all-allocations]\n"
                 "    [--first-run LINE:NTH[:from_then_on]]\n"
                 "    runs scripts on copies of the install tree and closes with \"N passed, N failed\"",
                 &RunScriptsCommand},
    {"memory",   "memory SCRIPT... [--all] [--plugin DLL] [--install DIR]\n"
                 "    runs the commands whose allocations a script sweeps for the first time, each time in\n"
                 "    a process of its own with another allocation failed", &MemoryCommand},
    {"commands", "commands [--english] [--markdown english|chinese] [--plugin DLL] [--install DIR]\n"
                 "    lists the plug-in's commands and where each is available;\n"
                 "    with --markdown as the table of a README", &ListCommandsCommand},
    {"bench",    "bench [options]\n"
                 "    measures how the commands grow with the assembly; see bench --help", &BenchCommand},
    {"help",     "help\n"
                 "    this text", &Help},
};
// clang-format on

int Help(const CommandArguments&) {
  std::printf("workbench: tries the plug-in without a CAD seat\n\n");
  for (const Subcommand& subcommand : kSubcommands) {
    std::printf("  workbench %s\n\n", subcommand.usage);
  }
  return 0;
}

int Run(const CommandArguments& arguments) {
  if (arguments.empty()) return Help({});
  for (const Subcommand& subcommand : kSubcommands) {
    if (arguments[0] == subcommand.name) {
      return subcommand.run({arguments.begin() + 1, arguments.end()});
    }
  }
  throw UsageError("unknown command \"" + arguments[0] + "\"");
}

}  // namespace
}  // namespace wb

int wmain(int argc, wchar_t** argv) {
  ::SetConsoleOutputCP(CP_UTF8);
  wb::CommandArguments arguments;
  for (int i = 1; i < argc; ++i) arguments.push_back(wb::FromWide(argv[i]));
  return wb::RunGuarded(&wb::Run, arguments, &wb::WithOwnPath);
}
