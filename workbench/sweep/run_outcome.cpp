// Collects outcomes and compares them.
#include "workbench/sweep/run_outcome.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/script/script_runner.h"

namespace wb {
namespace {

constexpr std::string_view kClosing = " ended with ";

std::vector<std::string> Said(const ScriptRun& run, const RunMark& mark) {
  const Events& events = run.host.events;
  std::vector<std::string> said = events.TextsSince<Note>(mark.events);
  for (const MessageBox& box : events.Since<MessageBox>(mark.events)) said.push_back(box.text);
  const auto& asked = run.user.asked();
  said.insert(said.end(), asked.begin() + static_cast<long>(mark.asked), asked.end());
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

std::filesystem::path LogFile(const ScriptRun& run) {
  return run.folders.local / "Quillmax" / "quillmax.log";
}

uintmax_t LogSize(const ScriptRun& run) {
  std::error_code error;
  const uintmax_t size = std::filesystem::file_size(LogFile(run), error);
  return error ? 0 : size;
}

std::string TextFrom(const std::filesystem::path& path, uintmax_t start) {
  std::ifstream file(path, std::ios::binary);
  file.seekg(static_cast<std::streamoff>(start));
  return {std::istreambuf_iterator<char>(file), {}};
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

// A log that has grown to its bound begins anew; what a command wrote before that is in the old
// one.
std::string LogFrom(const ScriptRun& run, uintmax_t mark) {
  const std::filesystem::path file = LogFile(run);
  if (mark <= LogSize(run)) return TextFrom(file, mark);
  return TextFrom(file.parent_path() / "quillmax.old.log", mark) + TextFrom(file, 0);
}

std::vector<std::string> Logged(const ScriptRun& run, uintmax_t mark) {
  const std::string log = LogFrom(run, mark);
  std::vector<std::string> lines;
  for (size_t at = 0; at < log.size();) {
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

// A closing line without the counts of what was worked on: "4 components" tells nobody that a fifth
// one is missing.
std::string WithoutCounts(const std::string& line) {
  const size_t outcome = std::min(line.find(": ", line.find(kClosing)), line.size());
  std::string text;
  for (size_t at = 0; at < outcome;) {
    const size_t end = std::min(line.find(", ", at), outcome);
    const std::string part = line.substr(at, end - at);
    const bool tells =
        part.find("left out") != std::string::npos || part.find("passed over") != std::string::npos;
    if (at == 0) {
      text = part;
    } else if (tells) {
      text += ", " + part;
    }
    at = end + 2;
  }
  return text + line.substr(outcome);
}

// What the log says came of the command and of what was pressed in its dialogs.
std::vector<std::string> ClosingLines(const std::vector<std::string>& logged) {
  std::vector<std::string> lines;
  for (const std::string& line : logged) {
    if (line.find(kClosing) != std::string::npos) lines.push_back(WithoutCounts(line));
  }
  return lines;
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
  return {run.host.events.Mark(), run.user.shown().size(), run.user.asked().size(), LogSize(run)};
}

RunOutcome OutcomeOf(ScriptRun& run, const CommandRun& result, const RunMark& mark,
                     const std::vector<std::filesystem::path>& folders) {
  RunOutcome outcome;
  outcome.refused = !result.available || result.status != 0;
  outcome.status = result.status;
  outcome.said = Said(run, mark);
  outcome.started = Started(run.host, mark.events);
  outcome.shown.assign(run.user.shown().begin() + static_cast<long>(mark.shown),
                       run.user.shown().end());
  outcome.logged = Logged(run, mark.log);
  outcome.files = ContentsOf(folders);
  outcome.state = StateNow(run.host, folders, outcome.files);
  return outcome;
}

std::vector<std::string> PutBack(Host& host, const SessionSnapshot& start,
                                 const RunOutcome& outcome, const SessionState& before,
                                 const std::vector<std::filesystem::path>& folders) {
  const bool has_touched = start.Restore(host, outcome.files);
  return NotPutBack(before,
                    has_touched ? StateNow(host, folders) : StateNow(host, folders, outcome.files));
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
  const auto closing = ClosingLines(outcome.logged);
  const bool log_tells = !Holds(ClosingLines(clean.logged), closing);
  const bool is_refused = outcome.refused && !clean.refused;
  const bool is_told = log_tells || is_refused || !Holds(clean.said, outcome.said);
  const std::string strange = Strange(outcome, clean, before);
  if (!is_told && !strange.empty()) return "without a word " + strange;
  const std::string undone = Undone(outcome, clean);
  if (undone.empty()) return "";
  if (!is_told) return "work left undone without a word: " + undone;
  if (!log_tells && !closing.empty()) {
    return "the run log says \"" + closing.back() + "\" as without a fault: " + undone;
  }
  return "";
}

}  // namespace wb
