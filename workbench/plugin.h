// The plug-in under test: loads the DLL by path, starts and stops it as the host does.
#pragma once

#include <filesystem>
#include <string>

namespace wb {

class Plugin {
 public:
  // Throws std::runtime_error with the path and Windows' reason when it cannot be loaded.
  explicit Plugin(const std::filesystem::path& dll);
  ~Plugin();
  Plugin(const Plugin&) = delete;
  Plugin& operator=(const Plugin&) = delete;

  // Calls the initialisation entry; gives its answer.
  int Start();
  void Stop();
  bool started() const { return started_; }

 private:
  std::filesystem::path dll_;
  void* module_ = nullptr;
  bool started_ = false;
};

// Asks a command's access rule, as the host does before it shows the entry; -1: no such command.
int AskAccess(const std::string& command);

// Runs a command as a click on its entry would: access rule first, then the action, then the
// account of what was left out. The result says what happened.
struct CommandRun {
  bool known = false;
  bool available = false;
  int status = 0;
  std::vector<std::string> left_out;  // resources not given back
};
CommandRun RunCommand(const std::string& command);

}  // namespace wb
