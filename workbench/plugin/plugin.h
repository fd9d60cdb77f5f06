// The plug-in under test: loads the DLL by path, starts and stops it as the host does.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace wb {

// Needs a host, which must outlive it.
class Plugin {
 public:
  // Intercepts the DLL's Windows calls right after loading. Throws std::runtime_error with the path
  // and Windows' reason when the DLL cannot be loaded or lacks its two entries.
  explicit Plugin(const std::filesystem::path& dll);
  // Stops the plug-in when it is still started, and unloads it.
  ~Plugin();
  Plugin(const Plugin&) = delete;
  Plugin& operator=(const Plugin&) = delete;

  // Calls the initialisation entry; gives its answer, 0 for success.
  int Start();
  // Calls the termination entry; a timer still pending then is a breach. Commands, menus and
  // notifications of the plug-in are gone afterwards.
  void Stop();
  bool started() const { return started_; }
  // What the initialisation entry said when it refused.
  const std::string& refusal() const { return refusal_; }

 private:
  void DropRegistrations();

  std::filesystem::path dll_;
  void* module_ = nullptr;
  bool started_ = false;
  std::string refusal_;
};

// Asks a command's access rule, as the host does before it shows the entry; -1: no such command.
int AskAccess(const std::string& command);

// Runs a command as a click on its entry would: access rule first, then the action, then the
// account of what was left out. Trace and accounts begin anew, unless another command is running
// (the user clicks while a dialog is up). The result says what happened.
struct CommandRun {
  bool known = false;
  bool available = false;
  int status = 0;
  std::vector<std::string> left_out;  // resources not given back
  // The working directory: commands that are not there to change it leave it as it was.
  std::filesystem::path directory_before;
  std::filesystem::path directory_after;
};
CommandRun RunCommand(const std::string& command);

}  // namespace wb
