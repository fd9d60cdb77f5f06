// The macro that replaces a component, to the character.
#include "assembly/create/replace_macro_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

// As they are given, in one piece each; the file's name stands between the two halves.
constexpr wchar_t kNewer[] =
    L"~`rmb_popup` `PopupMenu`;~ Command `ProCmdReplComp@PopupMenuGraphicWinStack` ;~ Select "
    L"`gen_repl_dlg` `ByCompPH.rpl_method_radio` 1 `Unrelated Component`;~ Activate `gen_repl_dlg` "
    L"`PB_NewComp`;~ Activate `file_open` `Current Dir`;~ Activate `file_open` `Ph_list.Filelist` "
    L"1 "
    L"`";
constexpr wchar_t kOlder[] =
    L"~ Command `ProCmdReplace` ;~ Select `gen_repl_dlg` `ByCompPH.rpl_method_radio`1  `Unrelated "
    L"Component`;~ Activate `gen_repl_dlg` `PB_NewComp`;~ Trail `UI Desktop` `DLG_PREVIEW_POST` "
    L"`file_open`;`file_open:Ph_list.Filelist:<NULL>`;~ Activate `file_open` `Current Dir`;~ "
    L"Activate `file_open` `Ph_list.Filelist`1  `";
constexpr wchar_t kEnd[] = L"`;~ Activate `gen_repl_dlg` `DoneBtn`;";

TEST(ReplaceMacroRules, OnlyThreeReleasesHaveTheOlderDialog) {
  for (const char* release : {"5.0", "Creo 1.0", "Creo 2.0"}) {
    EXPECT_EQ(ReplaceMacro(release, L"valve-1.prt"), std::wstring(kOlder) + L"valve-1.prt" + kEnd);
  }
  for (const char* release : {"30", "Creo 3.0", "", "creo 2.0", "Creo 2.0 ", "5"}) {
    EXPECT_EQ(ReplaceMacro(release, L"阀.asm"), std::wstring(kNewer) + L"阀.asm" + kEnd) << release;
  }
}

TEST(ReplaceMacroRules, TheFileIsInLowerCase) {
  EXPECT_EQ(ReplacingFile(L"VALVE-1", PRO_MDL_PART), L"valve-1.prt");
  EXPECT_EQ(ReplacingFile(L"阀_Ä01", PRO_MDL_ASSEMBLY), L"阀_ä01.asm");
}

}  // namespace
}  // namespace qm
