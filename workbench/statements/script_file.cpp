// Reads a script, tells its errors, runs it.
#include "workbench/statements/script_file.h"

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/reasons/own_path.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

void FailWhole(const std::string& file, int line, const std::string& why, RunRecord& record) {
  ++record.failed;
  record.failures.push_back({file, line, why, -1});
}

// "3 files only stand for the host's, such as PDF/a.pdf: there is no companion"; "" for none.
std::string NotReal(const ScriptRun& run) {
  size_t count = 0;
  ExportedFile first;
  for (const ExportedFile& written : run.host.events.All<ExportedFile>()) {
    if (!written.trouble.empty() && count++ == 0) first = written;
  }
  if (count == 0) return "";
  const auto below = PathFromUtf8(first.path).lexically_relative(run.folders.work);
  return std::to_string(count) + " files only stand for the host's, such as " + PathToUtf8(below) +
         ": " + first.trouble;
}

}  // namespace

ScriptOutcome RunScriptFile(const std::filesystem::path& file, const ScriptOptions& options,
                            RunRecord& record) {
  const int passed_before = record.passed;
  const int failed_before = record.failed;
  const std::string name = OwnPath(file);
  ScriptOutcome outcome;
  ParsedScript script;
  const auto text = ReadFileBytes(file);
  if (text) {
    script = ParseScript(*text, name, AllStatements());
    for (const LineError& error : script.errors) FailWhole(name, error.line, error.reason, record);
  } else {
    FailWhole(name, 0, "cannot be read", record);
  }
  outcome.readable = record.failed == failed_before;
  if (outcome.readable) {
    ScriptRun run(PathToUtf8(file), options, record);
    outcome.skipped = run.RunAll(script.statements);
    outcome.not_real = NotReal(run);
  }
  if (outcome.skipped.empty() && record.passed == passed_before && record.failed == failed_before) {
    FailWhole(name, 0, "checks nothing; it needs a \"run\" or an \"expect\" at least", record);
  }
  outcome.passed = record.passed - passed_before;
  outcome.failed = record.failed - failed_before;
  return outcome;
}

}  // namespace wb
