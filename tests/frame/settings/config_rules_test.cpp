// Where settings files lie.
#include "frame/settings/config_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

constexpr wchar_t kName[] = L"quillmax5.1C3.dll";

TEST(ConfigRules, SettingsLieBesideThePlugInWhateverItsFolder) {
  EXPECT_EQ(ConfigPathBeside(L"C:\\tools\\quillmax5.1C3.dll", kName, L"QmConfig.ini"),
            L"C:\\tools\\QMconfig\\QmConfig.ini");
  EXPECT_EQ(ConfigPathBeside(L"D:\\羽石 1\\QUILLMAX5.1c3.DLL", kName, L"quillmax.ini"),
            L"D:\\羽石 1\\QMconfig\\quillmax.ini");
  // Only the file's name is replaced, not a folder of the same name.
  EXPECT_EQ(ConfigPathBeside(L"C:\\quillmax5.1C3.dll\\quillmax5.1C3.dll", kName, L"a.ini"),
            L"C:\\quillmax5.1C3.dll\\QMconfig\\a.ini");
}

TEST(ConfigRules, ARenamedPlugInNeverTouchesAnotherProgramsFiles) {
  for (const wchar_t* module : {L"C:\\host\\host.exe", L"C:\\x\\my_quillmax5.1C3.dll", L"",
                                L"quillmax5.1C3.dll", L"C:\\x\\quillmax5.1C3.dll.bak"}) {
    const std::wstring path = ConfigPathBeside(module, kName, L"QmConfig.ini");
    EXPECT_NE(path.find(L'?'), std::wstring::npos) << "a folder that may exist";
    EXPECT_TRUE(path.ends_with(L"\\QmConfig.ini"));
  }
}

TEST(ConfigRules, TheTextFolderMayEndInSeparators) {
  for (const wchar_t* folder : {L"C:\\qm", L"C:\\qm\\", L"C:\\qm/"}) {
    EXPECT_EQ(ConfigPathIn(folder, L"QmParams.ini"), L"C:\\qm\\QMconfig\\QmParams.ini");
  }
}

}  // namespace
}  // namespace qm
