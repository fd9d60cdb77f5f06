// `workbench import` as a user meets it: what it says last is a script that runs.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "tests/workbench/step/step_pair.h"
#include "tests/workbench/temporary_folder.h"
#include "tests/workbench/test_paths.h"
#include "workbench/base/text.h"
#include "workbench/script/script_windows.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

class ImportProgram : public testing::Test {
 protected:
  std::string Workbench(const std::vector<std::string>& arguments) const {
    const std::string output =
        OutputOf(TestBinaryFolder() / "workbench.exe", arguments).value_or("");
    std::string lines;
    std::ranges::copy_if(output, std::back_inserter(lines), [](char c) { return c != '\r'; });
    return lines;
  }
  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(folder_ / PathFromUtf8(name), std::ios::binary) << text;
  }
  // What follows `mark` in the last line that holds it.
  static std::string After(const std::string& mark, const std::string& text) {
    const size_t at = text.rfind(mark);
    return at == text.npos ? "nothing after " + mark : text.substr(at + mark.size());
  }

  const TemporaryFolder temporary_{"quillmax 导入 test"};
  const fs::path& folder_ = temporary_.path;
};

TEST_F(ImportProgram, EndsWithTheLengthUnitAndAScriptThatRuns) {
  StepPair pair;
  pair.file.Usage(pair.pump, pair.bolt);
  StepTextBuilder lonely;
  lonely.Product("bolt", {lonely.Point("1.,2.,3.")}, lonely.Inches());
  const struct {
    std::string step, folder, unit;
  } cases[] = {{pair.file.Text(), "泵 1", "millimetre"}, {lonely.Text(), "bolt", "inch (25.4 mm)"}};
  for (const auto& item : cases) {
    Write("a.stp", item.step);
    const std::string told = Workbench(
        {"import", PathToUtf8(folder_ / "a.stp"), PathToUtf8(folder_ / PathFromUtf8(item.folder))});
    EXPECT_NE(told.find("length unit of the file: " + item.unit + ";"), std::string::npos) << told;
    Write("try.qms", After("workbench run try.qms\n", told));
    const std::string ran = Workbench({"run", PathToUtf8(folder_ / "try.qms")});
    EXPECT_NE(ran.find("\n1 passed, 0 failed"), std::string::npos) << told << ran;
  }
}

}  // namespace
}  // namespace wb
