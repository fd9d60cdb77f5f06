// The two macros. Deliberately each character stands as the host's users recorded it: no blank
// before a "1" and two behind it in the older one.
#include "assembly/create/replace_macro_rules.h"

#include <algorithm>
#include <iterator>

#include "frame/text/letter_case.h"

namespace qm {
namespace {

constexpr std::string_view kOlderReleases[] = {"5.0", "Creo 1.0", "Creo 2.0"};

constexpr wchar_t kOlderBeginning[] =
    L"~ Command `ProCmdReplace` ;"
    L"~ Select `gen_repl_dlg` `ByCompPH.rpl_method_radio`1  `Unrelated Component`;"
    L"~ Activate `gen_repl_dlg` `PB_NewComp`;"
    L"~ Trail `UI Desktop` `DLG_PREVIEW_POST` `file_open`;"
    L"`file_open:Ph_list.Filelist:<NULL>`;"
    L"~ Activate `file_open` `Current Dir`;"
    L"~ Activate `file_open` `Ph_list.Filelist`1  `";
constexpr wchar_t kBeginning[] =
    L"~`rmb_popup` `PopupMenu`;"
    L"~ Command `ProCmdReplComp@PopupMenuGraphicWinStack` ;"
    L"~ Select `gen_repl_dlg` `ByCompPH.rpl_method_radio` 1 `Unrelated Component`;"
    L"~ Activate `gen_repl_dlg` `PB_NewComp`;"
    L"~ Activate `file_open` `Current Dir`;"
    L"~ Activate `file_open` `Ph_list.Filelist` 1 `";
constexpr wchar_t kEnd[] =
    L"`;"
    L"~ Activate `gen_repl_dlg` `DoneBtn`;";

}  // namespace

std::wstring ReplacingFile(std::wstring_view model, ProMdlType type) {
  return LowerCased(std::wstring(model) + (type == PRO_MDL_ASSEMBLY ? L".asm" : L".prt"));
}

std::wstring ReplaceMacro(std::string_view release, std::wstring_view file) {
  const bool is_older = std::ranges::find(kOlderReleases, release) != std::end(kOlderReleases);
  return std::wstring(is_older ? kOlderBeginning : kBeginning).append(file) + kEnd;
}

}  // namespace qm
