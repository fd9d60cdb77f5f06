// TEMP as users set it.
#include "workbench/base/temporary_place.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/workbench/error_from.h"
#include "tests/workbench/temporary_folder.h"
#include "workbench/base/text.h"

#if defined(_WIN32)
#include "workbench/base/windows_headers.h"
#endif

namespace wb {
namespace {

namespace fs = std::filesystem;

#if defined(_WIN32)
constexpr const char* kVariable = "TMP";
void SetVariable(const fs::path& value) {
  ::SetEnvironmentVariableW(L"TMP", value.empty() ? nullptr : value.c_str());
}
#else
constexpr const char* kVariable = "TMPDIR";
void SetVariable(const fs::path& value) {
  value.empty() ? ::unsetenv(kVariable) : ::setenv(kVariable, value.c_str(), 1);
}
#endif

class Temp : public testing::Test {
 protected:
  Temp() : before_(std::getenv(kVariable) == nullptr ? "" : std::getenv(kVariable)) {}
  ~Temp() override { SetVariable(before_); }

  static std::string ErrorWith(const fs::path& value) {
    SetVariable(value);
    return ErrorFrom([] { TemporaryPlace(); });
  }

  // Of so many characters.
  fs::path FolderOf(size_t length) const {
    const size_t rest = length - temporary_.path.native().size() - 1;
    const fs::path folder = temporary_.path / std::string(rest, 'x');
    fs::create_directories(folder);
    return folder;
  }

  const TemporaryFolder temporary_{"quillmax temp test"};
  const fs::path before_;
};

TEST_F(Temp, ALongOneIsRefusedWithTheLongestThatWillDo) {
  EXPECT_EQ(ErrorWith(FolderOf(kLongestPlace - 1)), "");
  const fs::path folder = FolderOf(kLongestPlace + 5);
  const std::string error = ErrorWith(folder);
  ExpectError(error, "", "TEMP is a folder of 16");
  ExpectError(error, "", PathToUtf8(folder));
  ExpectError(error, "", "choose a folder of at most 159");
}

TEST_F(Temp, SoIsOneThatIsNotThere) {
  EXPECT_EQ(ErrorWith(temporary_.path / "missing").find("TEMP names no folder that can be used"),
            0u);
}

}  // namespace
}  // namespace wb
