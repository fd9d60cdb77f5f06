// What came of one run of a command: what it said, started and changed, to be held against a run
// without faults.
#pragma once

#include <string>
#include <vector>

#include "workbench/plugin/plugin.h"
#include "workbench/script/script_snapshot.h"

namespace wb {

// Models, windows, selection, options and files as one text.
std::string SessionText(Host& host, const std::vector<FolderSnapshot>& folders);

struct RunOutcome {
  bool refused = false;  // a failing status, or the access rule's
  int status = 0;
  std::vector<std::string> said;     // in boxes and notes
  std::vector<std::string> started;  // programs
  std::string session;               // afterwards
};

// Of the run whose events began at `mark`.
RunOutcome OutcomeOf(Host& host, const CommandRun& result, size_t mark,
                     const std::vector<FolderSnapshot>& folders);

// A command that meets a fault does its work all the same, or refuses it whole, or says something
// that it does not say otherwise. What of that it failed to do, "" for nothing.
std::string SilentHarm(const RunOutcome& outcome, const RunOutcome& clean,
                       const std::string& session_before);

}  // namespace wb
