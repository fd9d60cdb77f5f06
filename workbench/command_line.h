// The subcommands of workbench.exe. Each takes its arguments in UTF-8, without its own name, and
// gives the exit code: 0, 1 when something failed, 2 for a command line that cannot be obeyed.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace wb {

using CommandArguments = std::vector<std::string>;

struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Splits "FILE --force --out DIR" into words and options. An option in `with_value` takes the next
// word; any option not listed is a UsageError.
class CommandLine {
 public:
  CommandLine(const CommandArguments& arguments, const std::vector<std::string>& flags,
              const std::vector<std::string>& with_value);

  const std::vector<std::string>& words() const { return words_; }
  bool Has(const std::string& option) const;
  // The value given last; "" when the option is not there.
  std::string Value(const std::string& option) const;
  // The value as an absolute path; empty when the option is not there.
  std::filesystem::path Path(const std::string& option) const;

 private:
  std::vector<std::string> words_;
  std::vector<std::pair<std::string, std::string>> options_;
};

int ImportCommand(const CommandArguments& arguments);
int RunScriptsCommand(const CommandArguments& arguments);
int ListCommandsCommand(const CommandArguments& arguments);

// The install tree named by --install, or the one beside the program. Throws UsageError when it is
// not there.
std::filesystem::path InstallTree(const CommandLine& line);

}  // namespace wb
