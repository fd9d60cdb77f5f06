// Words and options of a command line.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace wb {

// In UTF-8, without the name of the program or subcommand.
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

}  // namespace wb
