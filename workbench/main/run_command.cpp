// `workbench run`: runs scripts, says what failed, and closes with "N passed, N failed".
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/main/subcommands.h"
#include "workbench/plugin/install_tree.h"
#include "workbench/plugin/plugin_entry.h"
#include "workbench/reasons/own_path.h"
#include "workbench/report/report.h"
#include "workbench/script/script_watch.h"
#include "workbench/script/script_windows.h"
#include "workbench/statements/fault_statements.h"
#include "workbench/statements/script_file.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

// A batch command on a large assembly may be at work for minutes between two statements.
constexpr unsigned kHangSeconds = 600;
constexpr unsigned kFirstRunHangSeconds = 60;

// Needs no memory: a crash of the plug-in is followed by what failed before.
void PrintFailures(const RunRecord& record, size_t from) {
  for (size_t i = from; i < record.failures.size(); ++i) {
    const RunFailure& failure = record.failures[i];
    std::printf("%s", failure.file.c_str());
    if (failure.line != 0) std::printf(":%d", failure.line);
    std::printf(": %s\n", failure.text.c_str());
  }
}

// The script that runs, for the end of the process.
const RunRecord* running_record = nullptr;
size_t first_failure = 0;

void TellFailuresSoFar() {
  if (running_record != nullptr) PrintFailures(*running_record, first_failure);
}

void RunOne(const std::string& script, const ScriptOptions& options, RunRecord& record,
            bool* readable) {
  const size_t failures = record.failures.size();
  const std::string name = OwnPath(PathFromUtf8(script));
  running_record = &record;
  first_failure = failures;
  AfterLastWords(&TellFailuresSoFar);
  const ScriptOutcome outcome = RunScriptFile(PathFromUtf8(script), options, record);
  running_record = nullptr;
  PrintFailures(record, failures);
  *readable = *readable && outcome.readable;
  if (!outcome.not_real.empty()) {
    std::printf("%s: %s\n", name.c_str(), outcome.not_real.c_str());
    record.facts.emplace_back("Not real", name + ": " + outcome.not_real);
  }
  if (outcome.skipped.empty()) {
    std::printf("%s: %d checks passed, %d failed\n", name.c_str(), outcome.passed, outcome.failed);
  } else {
    std::printf("%s: skipped, since %s\n", name.c_str(), outcome.skipped.c_str());
    record.facts.emplace_back("Skipped", name + ": " + outcome.skipped);
  }
  std::fflush(stdout);
}

// A script that puts the plug-in elsewhere cannot share a process with others; nor can one that
// withholds functions, since the plug-in looks each of them up once.
bool NeedsOwnProcess(const std::string& script) {
  const std::string text = ReadFileBytes(PathFromUtf8(script)).value_or("");
  const ParsedScript parsed = ParseScript(text, script, AllStatements());
  return std::any_of(parsed.statements.begin(), parsed.statements.end(), [](const Statement& s) {
    return s.Is("install") || s.Is("plugin") || s.Is("withhold");
  });
}

// Counts what a process of its own closes with, and passes on the lines before.
void TakeOver(const std::string& script, const std::string& output, RunRecord& record) {
  std::vector<std::string> lines;
  std::istringstream text(output);
  for (std::string line; std::getline(text, line);) lines.push_back(Trimmed(line));
  int passed = 0;
  int failed = 0;
  if (!lines.empty() &&
      std::sscanf(lines.back().c_str(), "%d passed, %d failed", &passed, &failed) == 2) {
    lines.pop_back();
  } else {
    failed = 1;
    lines.push_back(script + ": it ended without its closing line");
  }
  record.passed += passed;
  record.failed += failed;
  for (const std::string& line : lines) {
    std::printf("%s\n", line.c_str());
    if (failed > 0) record.failures.push_back({script, 0, line, -1});
  }
}

void RunApart(const std::string& script, const CommandLine& line, RunRecord& record) {
  CommandArguments arguments = {"run", script};
  for (const char* option : {"--out", "--plugin", "--install", "--fault"}) {
    if (line.Has(option)) arguments.insert(arguments.end(), {option, line.Value(option)});
  }
  for (const char* option : {"--all-allocations", "--other-habits", "--sampled-faults"}) {
    if (line.Has(option)) arguments.push_back(option);
  }
  TakeOver(script, OutputOf(ProgramFile(), arguments).value_or(""), record);
}

// "LINE[:NTH[:from_then_on]]".
MemorySweepOptions FirstRunOption(const std::string& text) {
  MemorySweepOptions options;
  if (text.empty()) return options;
  const size_t colon = std::min(text.find(':'), text.size());
  options.first_run_line = std::atoi(text.substr(0, colon).c_str());
  if (options.first_run_line <= 0) throw UsageError("--first-run wants LINE[:NTH[:from_then_on]]");
  if (colon == text.size()) return options;
  const FaultPlan plan = FaultOption("allocation" + text.substr(colon));
  options.nth = plan.nth;
  options.from_then_on = plan.from_then_on;
  return options;
}

}  // namespace

int RunScriptsCommand(const CommandArguments& arguments) {
  const CommandLine line(
      arguments, {"--all-allocations", "--other-habits", "--sampled-faults"},
      {"--out", "--report", "--trace", "--plugin", "--install", "--fault", "--first-run"});
  if (line.words().empty()) throw UsageError("run wants one script or more");
  ScriptOptions options;
  options.install = InstallTree(line);
  options.plugin = line.Path("--plugin");
  options.out = line.Path("--out");
  options.trace = line.Path("--trace");
  options.report = line.Path("--report");
  options.other_habits = line.Has("--other-habits");
  options.sampled_faults = line.Has("--sampled-faults");
  options.fault = FaultOption(line.Value("--fault"));
  options.memory = FirstRunOption(line.Value("--first-run"));
  options.memory.all = line.Has("--all-allocations");
  if (!options.trace.empty()) std::filesystem::remove(options.trace);

  RunRecord record;
  std::vector<std::string> scripts;
  for (const std::string& script : line.words()) scripts.push_back(OwnPath(PathFromUtf8(script)));
  record.script = Join(", ", scripts);
  record.facts.emplace_back("Plug-in",
                            OwnPath(options.plugin.empty() ? options.install : options.plugin));
  record.facts.emplace_back("Code page", std::to_string(AnsiCodePage()));
  WatchForHangs(line.Has("--first-run") ? kFirstRunHangSeconds : kHangSeconds);
  bool readable = true;
  const bool alone = line.words().size() == 1;
  for (const std::string& script : line.words()) {
    if (!alone && NeedsOwnProcess(script)) {
      RunApart(script, line, record);
    } else {
      RunOne(script, options, record, &readable);
    }
  }
  if (!options.report.empty()) {
    WriteReport(options.report, record);
    std::printf("report: %s\n", OwnPath(options.report).c_str());
  }
  std::printf("%d passed, %d failed\n", record.passed, record.failed);
  if (!readable) return 2;
  return record.failed == 0 ? 0 : 1;
}

}  // namespace wb
