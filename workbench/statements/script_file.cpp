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

// "2 files only stand for the host's: PDF/a.pdf, DXF/a.dxf (there is no companion)", of more than
// are named with "and 5 others"; "" for none.
std::string NotReal(const ScriptRun& run) {
  constexpr size_t kMostNamed = 20;
  size_t count = 0;
  std::vector<std::string> named;
  std::string trouble;
  for (const ExportedFile& written : run.host.events.All<ExportedFile>()) {
    if (written.trouble.empty()) continue;
    if (count++ == 0) trouble = written.trouble;
    if (named.size() == kMostNamed) continue;
    named.push_back(PathToUtf8(PathFromUtf8(written.path).lexically_relative(run.folders.work)));
  }
  if (count == 0) return "";
  std::string text =
      std::to_string(count) + " files only stand for the host's: " + Join(", ", named);
  if (count > named.size()) text += " and " + std::to_string(count - named.size()) + " others";
  return text + " (" + trouble + ")";
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
