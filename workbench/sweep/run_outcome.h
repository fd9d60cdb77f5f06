// What came of one run of a command: what it said, started, showed and changed, to be held against
// a run without faults.
#pragma once

#include <string>
#include <vector>

#include "workbench/plugin/plugin.h"
#include "workbench/sweep/session_state.h"

namespace wb {

class ScriptRun;

struct RunOutcome {
  bool refused = false;  // a failing status, or the access rule's
  int status = 0;
  std::vector<std::string> said;     // in boxes and notes, and by asking for something
  std::vector<std::string> started;  // programs, macros and movements of the mouse
  std::vector<std::string> shown;    // the tables of its dialogs, before each press and at the end
  std::vector<std::string> logged;   // lines of the run log, without times
  SessionState state;                // afterwards
  FolderContents files;              // likewise
};

// Where a run begins in what is only ever added to.
struct RunMark {
  size_t events = 0;
  size_t shown = 0;
  size_t asked = 0;
  uintmax_t log = 0;  // bytes
};
RunMark MarkRun(const ScriptRun& run);

// Of the run that began at `mark`.
RunOutcome OutcomeOf(ScriptRun& run, const CommandRun& result, const RunMark& mark,
                     const std::vector<std::filesystem::path>& folders);

// Puts everything back that the run of this outcome changed. A complaint for each fact that is not
// as it was: one that the snapshot forgets would go from one run into the next.
std::vector<std::string> PutBack(Host& host, const SessionSnapshot& start,
                                 const RunOutcome& outcome, const SessionState& before,
                                 const std::vector<std::filesystem::path>& folders);

// A command that meets a fault does its work all the same, or refuses it whole, or says something
// that it does not say otherwise. What of that it failed to do, "" for nothing.
std::string SilentHarm(const RunOutcome& outcome, const RunOutcome& clean,
                       const SessionState& before);

// A command may leave work undone when a call fails, and then tells of it: by a box, a note, its
// status or the run log, whose closing line is in any case not the one without a fault: a line
// before it is lost on who reads what came of the command. What it writes all the same is what it
// writes otherwise. What is wrong of that, "" for nothing.
std::string UntoldHarm(const RunOutcome& outcome, const RunOutcome& clean,
                       const SessionState& before);

// Told or not: a call that fails leaves each model that was there with what it had, or with what it
// gets without the fault. The first appearance, set of relations, unit, size, material or bend
// table that is neither; "" for none.
std::string WrongValue(const RunOutcome& outcome, const RunOutcome& clean,
                       const SessionState& before);

}  // namespace wb
