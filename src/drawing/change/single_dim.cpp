// QmSingleDim: runs the macro in "QmSingleDim.txt" among the settings. It stands there and not
// here, since it follows the host's menus, which differ from release to release.
#include "drawing/change/single_dim.h"

#include <string>

#include "drawing/change/single_dim_rules.h"
#include "frame/messages/message_box.h"
#include "frame/settings/config.h"
#include "frame/settings/text_file.h"
#include "toolkit/command.h"

namespace qm {

ProError QmSingleDim() {
  std::wstring macro = MacroOf(ReadTextFile(ConfigPath(L"QmSingleDim.txt")));
  if (macro.find_first_not_of(L" \t") == std::wstring::npos) {
    ShowMessage(L"\t尚未配置单一尺寸宏，请先在配置文件中填写\t");
    return PRO_TK_E_NOT_FOUND;
  }
  return ProMacroLoad(macro.data());
}

}  // namespace qm
