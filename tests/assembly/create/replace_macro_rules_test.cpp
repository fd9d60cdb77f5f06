// Which macro replaces a component; scripts have both to the character.
#include "assembly/create/replace_macro_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

TEST(ReplaceMacroRules, OnlyThreeReleasesHaveTheOlderDialog) {
  const auto is_older = [](const char* release) {
    return ReplaceMacro(release, L"阀.asm").starts_with(L"~ Command `ProCmdReplace`");
  };
  for (const char* release : {"5.0", "Creo 1.0", "Creo 2.0"}) EXPECT_TRUE(is_older(release));
  for (const char* release : {"30", "Creo 3.0", "", "creo 2.0", "Creo 2.0 ", "5"}) {
    EXPECT_FALSE(is_older(release)) << release;
  }
}

TEST(ReplaceMacroRules, TheFileIsInLowerCase) {
  EXPECT_EQ(ReplacingFile(L"VALVE-1", PRO_MDL_PART), L"valve-1.prt");
  EXPECT_EQ(ReplacingFile(L"阀_Ä01", PRO_MDL_ASSEMBLY), L"阀_ä01.asm");
}

}  // namespace
}  // namespace qm
