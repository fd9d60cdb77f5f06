// A script as a file: what became of it.
#pragma once

#include <filesystem>
#include <string>

#include "workbench/script/script_runner.h"

namespace wb {

// Its failures are in the record.
struct ScriptOutcome {
  int passed = 0;
  int failed = 0;
  bool readable = true;  // false: the file cannot be read or has errors, and nothing of it ran
  std::string skipped;   // why it was not run here; empty: it was
  // Which files only stand for the host's although they could be real, and why; empty: none.
  std::string not_real;
};

// Reads, checks and runs one script, and adds to `record` what happened.
ScriptOutcome RunScriptFile(const std::filesystem::path& file, const ScriptOptions& options,
                            RunRecord& record);

}  // namespace wb
