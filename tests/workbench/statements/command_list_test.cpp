// What `workbench commands` says of the plug-in's commands.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/workbench/test_paths.h"
#include "workbench/base/text.h"
#include "workbench/script/script_windows.h"

namespace wb {
namespace {

std::vector<std::string> LinesOf(const std::vector<std::string>& arguments) {
  std::istringstream output(
      OutputOf(TestBinaryFolder() / "workbench.exe", arguments).value_or("it cannot be started"));
  std::vector<std::string> lines;
  for (std::string line; std::getline(output, line);) lines.push_back(Trimmed(line));
  return lines;
}

TEST(CommandList, SaysWhereEachIsAvailable) {
  const std::vector<std::string> lines = LinesOf({"commands"});
  ASSERT_EQ(lines.size(), 57u) << Join("\n", lines);
  EXPECT_NE(lines[0].find(": 55 commands"), std::string::npos) << lines[0];
  const auto row = std::ranges::find_if(
      lines, [](const std::string& line) { return line.starts_with("SetUnit "); });
  ASSERT_NE(row, lines.end()) << Join("\n", lines);
  std::istringstream words(*row);
  std::vector<std::string> columns(6);
  for (std::string& column : columns) words >> column;
  EXPECT_EQ(Join(" ", columns), "SetUnit yes yes - - -") << *row;
}

}  // namespace
}  // namespace wb
