// One command run again and again with faults, and what was wrong with a run.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "workbench/checks/faults.h"
#include "workbench/plugin/plugin.h"

namespace wb {

// One mistake tends to show at many calls; these many bad runs of a sweep are told in full.
inline constexpr int kMostToldRuns = 25;

class ScriptRun;
struct Statement;

// Under faults the plug-in may say and ask what it likes, but it must misuse nothing, leave nothing
// out, and leave the working directory and the options as it would without faults. As long as this
// lives boxes are no failures.
class SweptCommand {
 public:
  SweptCommand(ScriptRun& run, const Statement& statement);
  ~SweptCommand();
  SweptCommand(const SweptCommand&) = delete;
  SweptCommand& operator=(const SweptCommand&) = delete;

  // `plan` with nth 0: without any fault.
  CommandRun RunOnce(const FaultPlan& plan);
  // To be taken before the fault is cleared.
  std::vector<std::string> Complaints(const CommandRun& result);
  // Tells what was wrong with the run without faults, and learns from it.
  std::vector<std::string> ComplaintsOfClean(const CommandRun& clean);
  // For who compares whole sessions, of which the directory is a part.
  void IgnoreDirectory() { changes_directory_ = true; }
  // The folders whose files belong to the session of a sweep.
  std::vector<std::filesystem::path> Folders() const;

 private:
  void CheckRestored(const CommandRun& result, std::vector<std::string>* complaints) const;

  ScriptRun& run_;
  const Statement& statement_;
  const bool kept_lines_;
  const std::map<std::string, std::vector<std::string>> options_;             // before the sweep
  std::map<std::string, std::vector<std::string>> options_after_ = options_;  // without faults
  bool changes_directory_ = false;  // the command does so without any fault
  bool strikes_again_ = false;      // the fault does, where it did before
};

}  // namespace wb
