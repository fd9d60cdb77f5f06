// Runs scripts: one host, one fresh copy of the installation and one user a script.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "workbench/host/host.h"
#include "workbench/language/script_parser.h"
#include "workbench/plugin/install_copy.h"
#include "workbench/plugin/plugin.h"
#include "workbench/plugin/popups.h"
#include "workbench/report/run_record.h"
#include "workbench/script/script_user.h"
#include "workbench/script/script_windows.h"
#include "workbench/spreadsheet/spreadsheet_server.h"

namespace wb {

// What sweeps of allocations do in this process.
struct MemorySweepOptions {
  bool all = false;  // fails every allocation instead of a sample
  // The sweep in this line, and no other, runs its command for the first time with one fault, and
  // then without any; 0: all sweeps run, warm.
  int first_run_line = 0;
  long nth = 0;  // 0: only counts
  bool from_then_on = false;
};

struct ScriptOptions {
  std::filesystem::path install;  // the install tree; every script works on a copy of its own
  std::filesystem::path plugin;   // a DLL to run instead of the tree's; empty: the tree's
  std::filesystem::path out;      // keeps each script's folders below here; empty: they are removed
  std::filesystem::path trace;    // file that takes the calls of every action; empty: none
  std::filesystem::path report;   // page to collect for, with files beside it; empty: none
  bool other_habits = false;      // the host starts with the other set of its habits
  bool sampled_faults = false;    // sweeps take calls of every function, not every call
  FaultPlan fault;                // met by every action without one of its own; nth 0: none
  MemorySweepOptions memory;
};

// A statement that cannot be carried out; the script ends there.
struct ScriptError : std::runtime_error {
  using std::runtime_error::runtime_error;
};
// The script cannot be run on this machine.
struct ScriptSkip {
  std::string why;
};

// The folders of one script's run.
struct ScriptFolders {
  explicit ScriptFolders(const std::filesystem::path& kept_below, const std::string& script);
  ~ScriptFolders();
  ScriptFolders(const ScriptFolders&) = delete;
  ScriptFolders& operator=(const ScriptFolders&) = delete;

  std::filesystem::path script;   // where the script lies
  std::filesystem::path top;      // of all that follow
  std::filesystem::path work;     // working directory at the start
  std::filesystem::path install;  // the copy of the install tree
  std::filesystem::path local;    // local application data
  std::filesystem::path desktop;
  bool kept = false;
};

// How far the events had come when the last action began, and when complaints were last taken:
// expectations look at what the action added.
struct ActionMarks {
  size_t begin = 0;
  size_t told = 0;
};

class ScriptRun {
 public:
  // Counts and failures are added to `record`.
  ScriptRun(const std::string& script, const ScriptOptions& options, RunRecord& record);
  ~ScriptRun();
  ScriptRun(const ScriptRun&) = delete;
  ScriptRun& operator=(const ScriptRun&) = delete;

  // Carries out the statements in order; ends early where one cannot be carried out. Gives why the
  // script cannot be run on this machine, or "".
  std::string RunAll(const std::vector<Statement>& statements);
  // Carries out one, with the folder names in its arguments filled in.
  void Execute(const Statement& statement);

  // The outcome of an expectation: "FILE:LINE: what, expected ..., got ...".
  void Check(const Statement& at, bool holds, const std::string& what, const std::string& expected,
             const std::string& got);
  void CheckText(const Statement& at, const std::string& what, const std::string& expected,
                 const std::string& got);
  void Pass() { ++record_.passed; }
  void Fail(const Statement& at, const std::string& what);

  // Starts the plug-in unless it runs.
  void EnsureStarted();
  // Throws ScriptError when the plug-in refuses.
  void Start();
  void Stop(const Statement& at);
  // The copy of the install tree, made at the first need.
  const std::filesystem::path& Installed();
  std::filesystem::path ConfigFile(const std::string& name);

  // Does something in which the plug-in's code runs: fault, answers of the statement's block, and
  // the checks that belong to every action. Counts one check for the action as a whole.
  void Act(const Statement& at, const std::function<void()>& action);
  // The checks alone, for repeated actions; gives the complaints.
  std::vector<std::string> TakeComplaints();
  void BeginMarks();

  // What a script says before a command runs is how the models are; later the user changes them.
  bool ChangedByUser() const { return !host.running_command.empty(); }

  // A model by "bolt" or "bolt.prt", in session; a bare name prefers the solid to its drawing.
  Model& ModelNamed(const std::string& name);
  Model* FindModel(const std::string& name);
  // The assembly or part that component paths start from.
  Model& Root();
  // Relative paths lie in the working folder.
  std::filesystem::path WorkPath(const std::string& path) const;
  // Relative paths lie beside the script.
  std::filesystem::path ScriptPath(const std::string& path) const;

  Host host;
  SpreadsheetServer spreadsheet{host};
  ScriptUser user;
  ScriptFolders folders;
  const ScriptOptions& options;
  ActionMarks marks;
  std::string plugin_name;           // file name of the DLL in the copy
  std::string install_name;          // folder name of the copy
  std::vector<OfferedButton> popup;  // as last created
  FaultPlan fault;                   // ordered by the script for the next action
  long faults_struck = 0;            // by the last action
  int status = 0;                    // of the last command
  int recording = -1;                // index of the record of the command at work
  std::unique_ptr<ClipboardHolder> clipboard_holder;
  std::map<std::filesystem::path, std::unique_ptr<FileHolder>> held_files;
  bool lenient = false;  // boxes and answers left over are no failures; expectations must hold

  RunRecord& record() { return record_; }

 private:
  // Fills in the names of folders, in the statement's block as well.
  void Expand(Statement* statement);
  void AppendTrace(const Statement& at);
  static void CheckOnePlace(const std::filesystem::path& dll);

  void CheckFaultsStruck(const Statement& at);

  RunRecord& record_;
  std::vector<std::string> broken_in_sweep_;  // expectations, until complaints are taken
  bool option_fault_struck_ = false;          // in any action so far
  std::unique_ptr<InstallCopy> install_;
  std::unique_ptr<Plugin> plugin_;
};

// `text` as a script would write it, so that tabs can be seen.
std::string Quoted(const std::string& text);

}  // namespace wb
