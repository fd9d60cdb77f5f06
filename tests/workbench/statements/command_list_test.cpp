// What `workbench commands` says of the plug-in's commands, against the plug-in's own list.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "entry/not_in_build.h"
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

bool IsInBuild(const std::string& command) {
  return std::ranges::find(qm::kNotInBuild, command) == std::end(qm::kNotInBuild);
}

TEST(CommandList, SaysWhatIsBuilt) {
  const std::vector<std::string> lines = LinesOf({"commands"});
  ASSERT_EQ(lines.size(), 57u) << Join("\n", lines);
  EXPECT_NE(lines[0].find(": 55 commands, " + std::to_string(55 - std::size(qm::kNotInBuild)) +
                          " of them built"),
            std::string::npos)
      << lines[0];
  for (size_t i = 2; i < lines.size(); ++i) {
    std::istringstream row(lines[i]);
    std::string command, built;
    row >> command >> built;
    EXPECT_EQ(built, IsInBuild(command) ? "yes" : "-") << lines[i];
  }
}

TEST(CommandList, IsTheTableOfBothReadmes) {
  const std::vector<std::string> english = LinesOf({"commands", "--markdown", "english"});
  const std::vector<std::string> chinese = LinesOf({"commands", "--markdown", "chinese"});
  const auto has = [](const std::vector<std::string>& lines, const char* row) {
    return std::ranges::find(lines, row) != lines.end();
  };
  EXPECT_TRUE(has(english,
                  "| 15 | `QmIsolate` | 独立显示 | Show only the selected components. | "
                  "assembly, manufacturing | yes |"))
      << Join("\n", english);
  EXPECT_TRUE(has(
      chinese, "| 15 | `QmIsolate` | 独立显示 | 仅显示所选元件，隐藏其余零件 | 组件、制造 | 是 |"))
      << Join("\n", chinese);
}

}  // namespace
}  // namespace wb
