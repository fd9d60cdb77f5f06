// Two runs of the same scripts make the same calls and leave the same files, but for times of day:
// only so can a failure be looked at again.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <string_view>

#include "tests/long_run.h"
#include "tests/source_folder.h"
#include "tests/workbench/test_paths.h"
#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/script/script_windows.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

// Sweeps say themselves when a repeated run differs; and one script makes paths that are longer
// than the library of these tests can follow.
bool IsLeftOut(const std::string& stem) {
  return stem.ends_with("faults") || stem.ends_with("memory") || stem == "ex_igs";
}

std::vector<std::string> ScriptsToRepeat() {
  const fs::path all = SourceFolder() / "tests" / "scripts";
  if (!IsLongRun()) return {PathToUtf8(all / "export" / "bom_export.qms")};
  std::vector<std::string> scripts;
  for (const auto& item : fs::recursive_directory_iterator(all)) {
    const bool is_script = item.path().extension() == ".qms";
    if (is_script && !IsLeftOut(PathToUtf8(item.path().stem())))
      scripts.push_back(PathToUtf8(item));
  }
  std::ranges::sort(scripts);
  return scripts;
}

// The run log and the journal of renamings have times of day, and how long things took.
std::string WithoutNumbers(std::string text) {
  std::string kept;
  for (const char c : text) {
    const bool is_digit = std::isdigit(static_cast<unsigned char>(c)) != 0;
    if (!is_digit || kept.empty() || kept.back() != '0') kept += is_digit ? '0' : c;
  }
  return kept;
}

// The number of the process stands in the names of the install tree's copy and of files that try
// whether one may write in a folder.
std::string WithoutProcess(std::string text) {
  for (const std::string_view before : {"workbench script ", "quillmax-"}) {
    for (size_t at = text.find(before); at != std::string::npos; at = text.find(before, at)) {
      at += before.size();
      const size_t end = std::min(text.find_first_not_of("0123456789", at), text.size());
      text.erase(at, end - at);
    }
  }
  return text;
}

using Files = std::map<std::string, std::string>;

Files FilesBelow(const fs::path& folder) {
  Files files;
  for (const auto& item : fs::recursive_directory_iterator(folder)) {
    if (!item.is_regular_file()) continue;
    const std::string name = PathToUtf8(item.path().lexically_relative(folder));
    const std::string content = ReadFileBytes(item.path()).value_or("cannot be read");
    const bool has_times = name.find("appdata") != std::string::npos;
    files[name] = has_times ? WithoutNumbers(content) : WithoutProcess(content);
  }
  return files;
}

// All that `scripts` leave, the trace of their calls among it.
Files LeftBy(const std::vector<std::string>& scripts) {
  const fs::path folder = fs::temp_directory_path() / "twice";
  fs::remove_all(folder);
  fs::create_directories(folder);
  std::vector<std::string> arguments = {"run"};
  arguments.insert(arguments.end(), scripts.begin(), scripts.end());
  arguments.insert(arguments.end(),
                   {"--out", PathToUtf8(folder), "--trace", PathToUtf8(folder / "calls.txt")});
  const std::string text =
      OutputOf(TestBinaryFolder() / "workbench.exe", arguments).value_or("it cannot be started");
  EXPECT_NE(text.find(" passed, 0 failed"), std::string::npos) << text;
  Files files = FilesBelow(folder);
  fs::remove_all(folder);
  return files;
}

TEST(RepeatedRuns, MakeTheSameCallsAndLeaveTheSameFiles) {
  const std::vector<std::string> scripts = ScriptsToRepeat();
  const Files first = LeftBy(scripts);
  const Files second = LeftBy(scripts);
  EXPECT_FALSE(first.at("calls.txt").empty());
  for (const auto& [name, content] : first) {
    ASSERT_TRUE(second.contains(name)) << name << " is missing the second time";
    EXPECT_TRUE(content == second.at(name)) << name << " is another one the second time";
  }
  EXPECT_EQ(first.size(), second.size());
}

}  // namespace
}  // namespace wb
