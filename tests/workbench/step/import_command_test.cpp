// Where an import may write its models.
#include "workbench/base/text.h"
#include "workbench/step/import.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "tests/workbench/temporary_folder.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

class Import : public testing::Test {
 protected:
  Import() {
    std::ofstream(folder_ / "notes.txt") << "mine";
    const Model bolt({"bolt", ModelKind::kPart});
    bolt_.models.push_back(bolt);
    bolt_.tops.push_back(bolt.id);
  }

  std::string ErrorOf(const fs::path& target) const {
    try {
      WriteModels(bolt_, target);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "written";
  }

  // Everything below the folder, "/" after folders.
  std::set<std::string> Present() const {
    std::set<std::string> names;
    for (const auto& item : fs::recursive_directory_iterator(folder_)) {
      names.insert(PathToUtf8(item.path().filename()) + (item.is_directory() ? "/" : ""));
    }
    return names;
  }

  const TemporaryFolder temporary_{"quillmax import test"};
  const fs::path& folder_ = temporary_.path;
  ImportedModels bolt_;
};

TEST_F(Import, AFileInPlaceOfTheFolderIsToldAndNothingIsWritten) {
  const fs::path file = folder_ / "notes.txt";
  for (const fs::path& target : {file, file / "deeper" / "still"}) {
    const std::string error = ErrorOf(target);
    EXPECT_EQ(error.find(PathToUtf8(file) + " is a file, and models need a folder; name"), 0u)
        << error;
    EXPECT_EQ(Present(), std::set<std::string>{"notes.txt"}) << PathToUtf8(target);
  }
}

TEST_F(Import, MissingFoldersAreMade) {
  EXPECT_EQ(ErrorOf(folder_ / "new" / "one"), "written");
  EXPECT_EQ(Present(), (std::set<std::string>{"notes.txt", "new/", "one/", "bolt.prt.1"}));
}

}  // namespace
}  // namespace wb
