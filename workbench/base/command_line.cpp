// Sorts a command line into words and options.
#include "workbench/base/command_line.h"

#include <algorithm>

#include "workbench/base/text.h"

namespace wb {
namespace {

bool Contains(const std::vector<std::string>& list, const std::string& text) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

}  // namespace

CommandLine::CommandLine(const CommandArguments& arguments, const std::vector<std::string>& flags,
                         const std::vector<std::string>& with_value) {
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (!argument.starts_with("--")) {
      words_.push_back(argument);
    } else if (Contains(flags, argument)) {
      options_.emplace_back(argument, "");
    } else if (!Contains(with_value, argument)) {
      throw UsageError("unknown option " + argument);
    } else if (++i == arguments.size()) {
      throw UsageError(argument + " wants a value");
    } else {
      options_.emplace_back(argument, arguments[i]);
    }
  }
}

bool CommandLine::Has(const std::string& option) const {
  return std::any_of(options_.begin(), options_.end(),
                     [&](const auto& given) { return given.first == option; });
}

std::string CommandLine::Value(const std::string& option) const {
  std::string value;
  for (const auto& [name, given] : options_) {
    if (name == option) value = given;
  }
  return value;
}

std::filesystem::path CommandLine::Path(const std::string& option) const {
  const std::string value = Value(option);
  return value.empty() ? std::filesystem::path() : std::filesystem::absolute(PathFromUtf8(value));
}

}  // namespace wb
