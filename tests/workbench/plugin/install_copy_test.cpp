// Where the copies of the install tree lie: the plug-in is tried in folders of any name.
#include "workbench/plugin/install_copy.h"

#include <gtest/gtest.h>

#include "tests/workbench/temporary_folder.h"

namespace wb {
namespace {

TEST(InstallCopy, LiesInAFolderOfTheVeryCharactersAskedFor) {
  const TemporaryFolder tree{"quillmax install copy"};
  std::filesystem::create_directories(tree.path / "QMconfig");
  const InstallCopy copy(tree.path, "羽石 工具箱 naïve");
  EXPECT_NE(copy.tree().wstring().find(L"\\workbench 羽石 工具箱 naïve "), std::wstring::npos)
      << copy.tree();
  EXPECT_TRUE(std::filesystem::is_directory(copy.tree() / "QMconfig"));
}

}  // namespace
}  // namespace wb
