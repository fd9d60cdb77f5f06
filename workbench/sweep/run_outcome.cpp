// Collects outcomes and compares them.
#include "workbench/sweep/run_outcome.h"

#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/script/script_runner.h"

namespace wb {
namespace {

constexpr std::string_view kClosing = " ended with ";

std::vector<std::string> Said(const Host& host, size_t mark) {
  std::vector<std::string> said = host.events.TextsSince<Note>(mark);
  for (const MessageBox& box : host.events.Since<MessageBox>(mark)) said.push_back(box.text);
  return said;
}

std::vector<std::string> Started(const Host& host, size_t mark) {
  std::vector<std::string> started;
  for (const ShellCall& call : host.events.Since<ShellCall>(mark)) {
    started.push_back(call.program + " " + call.parameters);
  }
  for (const QueuedMacro& macro : host.events.Since<QueuedMacro>(mark)) {
    started.push_back("macro " + macro.text);
  }
  for (const MouseEvent& event : host.events.Since<MouseEvent>(mark)) {
    started.push_back("mouse " + std::to_string(event.flags));
  }
  return started;
}

std::string LogText(const ScriptRun& run) {
  return ReadFileBytes(run.folders.local / "Quillmax" / "quillmax.log").value_or("");
}

// A line without its time stamp, and without the seconds that the command took.
std::string WithoutTimes(const std::string& line) {
  const size_t stamp = line.find("  ");
  std::string text = stamp == std::string::npos ? line : line.substr(stamp + 2);
  const size_t after = text.find(" after ");
  if (text.find(kClosing) == std::string::npos || after == std::string::npos) return text;
  const size_t unit = text.find(" s", after + 1);
  return unit == std::string::npos ? text : text.erase(after, unit + 2 - after);
}

// A log that has grown to its bound begins anew.
std::vector<std::string> Logged(const ScriptRun& run, size_t mark) {
  const std::string log = LogText(run);
  std::vector<std::string> lines;
  for (size_t at = mark <= log.size() ? mark : 0; at < log.size();) {
    const size_t end = std::min(log.find('\n', at), log.size());
    lines.push_back(WithoutTimes(Trimmed(log.substr(at, end - at))));
    at = end + 1;
  }
  return lines;
}

// Whether all of `some` is in `all`, each as often.
bool Holds(std::vector<std::string> all, std::vector<std::string> some) {
  std::sort(all.begin(), all.end());
  std::sort(some.begin(), some.end());
  return std::includes(all.begin(), all.end(), some.begin(), some.end());
}

bool DidItsWork(const RunOutcome& outcome, const RunOutcome& clean) {
  return outcome.status == clean.status && outcome.state == clean.state &&
         outcome.started == clean.started && Holds(outcome.said, clean.said);
}

// What is missing or other than without a fault, "" for nothing. Texts of notes and boxes do not
// count: a note that could not be shown is no work undone.
std::string Undone(const RunOutcome& outcome, const RunOutcome& clean) {
  const std::vector<std::string> names = Differences(outcome.state, clean.state);
  if (!names.empty()) {
    return names.front() + " is " + TextOfFact(outcome.state, names.front()) + " instead of " +
           TextOfFact(clean.state, names.front());
  }
  if (outcome.started != clean.started) return "started: " + Join("; ", outcome.started);
  if (outcome.shown != clean.shown) return "tables shown: " + Join("; ", outcome.shown);
  return "";
}

// The first fact that is neither as it was nor as it becomes without a fault.
std::string Strange(const RunOutcome& outcome, const RunOutcome& clean,
                    const SessionState& before) {
  for (const std::string& name : Differences(outcome.state, clean.state)) {
    if (!HaveSame(name, outcome.state, before)) {
      return name + " became " + TextOfFact(outcome.state, name) + ", without a fault " +
             TextOfFact(clean.state, name);
    }
  }
  return "";
}

}  // namespace

RunMark MarkRun(const ScriptRun& run) {
  return {run.host.events.Mark(), run.user.shown().size(), LogText(run).size()};
}

RunOutcome OutcomeOf(ScriptRun& run, const CommandRun& result, const RunMark& mark,
                     const std::vector<std::filesystem::path>& folders) {
  RunOutcome outcome;
  outcome.refused = !result.available || result.status != 0;
  outcome.status = result.status;
  outcome.said = Said(run.host, mark.events);
  outcome.started = Started(run.host, mark.events);
  outcome.shown.assign(run.user.shown().begin() + static_cast<long>(mark.shown),
                       run.user.shown().end());
  outcome.logged = Logged(run, mark.log);
  outcome.state = StateNow(run.host, folders);
  return outcome;
}

std::string SilentHarm(const RunOutcome& outcome, const RunOutcome& clean,
                       const SessionState& before) {
  if (DidItsWork(outcome, clean) || !Holds(clean.said, outcome.said)) return "";
  const bool is_untouched = outcome.state == before;
  if (outcome.refused && is_untouched) return "";
  if (is_untouched) return "it answered success without its work and without a word";
  return "it left its work half done without a word";
}

std::string UntoldHarm(const RunOutcome& outcome, const RunOutcome& clean,
                       const SessionState& before) {
  const bool log_tells = !Holds(clean.logged, outcome.logged);
  const bool is_refused = outcome.refused && !clean.refused;
  const bool is_told = log_tells || is_refused || !Holds(clean.said, outcome.said);
  const std::string strange = Strange(outcome, clean, before);
  if (!is_told && !strange.empty()) return "without a word " + strange;
  const std::string undone = Undone(outcome, clean);
  if (undone.empty()) return "";
  if (!is_told) return "work left undone without a word: " + undone;
  const bool log_was_written = !outcome.logged.empty();
  if (!log_tells && log_was_written) {
    return "the run log says \"" + outcome.logged.back() + "\" as without a fault: " + undone;
  }
  return "";
}

}  // namespace wb
