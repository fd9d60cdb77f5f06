// `workbench memory`: what scripts sweep allocations of is run for the first time in a process of
// its own for each fault. A process that dies has no closing line, and is told.
#include <algorithm>
#include <cstdio>
#include <sstream>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/checks/fault_sample.h"
#include "workbench/language/script_parser.h"
#include "workbench/main/subcommands.h"
#include "workbench/plugin/install_tree.h"
#include "workbench/script/script_windows.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

// The first sweep of all takes a dense beginning, since what all commands do at first is the
// same; of the others a few are spread over the whole.
constexpr long kDense = 64;
constexpr long kSparse = 6;
constexpr const char* kFirstRun = ": first run of ";
constexpr const char* kCleanEnd = " passed, 0 failed";

struct Tally {
  int passed = 0;
  int failed = 0;
};

class FirstRuns {
 public:
  FirstRuns(std::string script, const CommandLine& line, Tally& tally)
      : script_(std::move(script)), line_(line), tally_(tally) {}

  void Sweep(const Statement& statement, bool is_first) {
    const int failed_before = tally_.failed;
    const std::string census = Output(statement.line, "");
    const long allocations = Allocations(census);
    Count(census, "without any fault");
    const long dense = line_.Has("--all") ? allocations : is_first ? kDense : 0;
    const std::vector<long> places = SampledPlaces(allocations, dense, kSparse);
    for (const long nth : places) {
      for (const char* duration : {"", ":from_then_on"}) {
        const std::string fault = std::to_string(nth) + duration;
        Count(Output(statement.line, fault), "allocation " + fault);
      }
    }
    std::printf("%s: %ld allocations, %zu first runs, %d bad runs\n", statement.text.c_str(),
                allocations, 1 + 2 * places.size(), tally_.failed - failed_before);
    std::fflush(stdout);
  }

 private:
  std::string Output(int at, const std::string& fault) const {
    const std::string which = std::to_string(at) + (fault.empty() ? "" : ":" + fault);
    CommandArguments arguments = {"run", script_, "--first-run", which};
    for (const char* option : {"--plugin", "--install"}) {
      if (line_.Has(option)) arguments.insert(arguments.end(), {option, line_.Value(option)});
    }
    return OutputOf(ProgramFile(), arguments).value_or("");
  }

  static long Allocations(const std::string& census) {
    std::istringstream words(census);
    long number = 0;
    for (std::string before, word; words >> word; before = word) {
      if (word == "allocations") std::sscanf(before.c_str(), "%ld", &number);
    }
    return number;
  }

  void Count(const std::string& output, const std::string& which) {
    const bool has_run = output.find(kFirstRun) != std::string::npos;
    if (has_run && output.find(kCleanEnd) != std::string::npos) {
      ++tally_.passed;
      return;
    }
    ++tally_.failed;
    std::printf("%s:\n%s\n", which.c_str(), Trimmed(output).c_str());
    std::fflush(stdout);
  }

  const std::string script_;
  const CommandLine& line_;
  Tally& tally_;
};

std::vector<Statement> SweepsOf(const std::string& script) {
  const std::string text = ReadFileBytes(PathFromUtf8(script)).value_or("");
  ParsedScript parsed = ParseScript(text, script, AllStatements());
  std::erase_if(parsed.statements, [](const Statement& statement) {
    return !statement.text.starts_with("sweep allocations of ");
  });
  if (!parsed.errors.empty() || parsed.statements.empty()) {
    throw UsageError(script + " cannot be read, has errors or sweeps no allocations");
  }
  return parsed.statements;
}

}  // namespace

int MemoryCommand(const CommandArguments& arguments) {
  const CommandLine line(arguments, {"--all"}, {"--plugin", "--install"});
  if (line.words().empty()) throw UsageError("memory wants one script or more");
  Tally tally;
  for (const std::string& script : line.words()) {
    FirstRuns runs(script, line, tally);
    const bool is_first = &script == &line.words().front();
    const std::vector<Statement> sweeps = SweepsOf(script);
    for (const Statement& sweep : sweeps) runs.Sweep(sweep, is_first && &sweep == &sweeps.front());
  }
  std::printf("%d passed, %d failed\n", tally.passed, tally.failed);
  return tally.failed == 0 ? 0 : 1;
}

}  // namespace wb
