// QmClearAllColor: has the host itself clear all appearances, by a macro that runs when the command
// has ended.
#include "display/clear_all_color.h"

#include <string>

#include "display/clear_all_macro.h"
#include "toolkit/command.h"

namespace qm {

ProError QmClearAllColor() {
  // The host takes it as changeable text.
  std::wstring macro = kClearAllMacro;
  return ProMacroLoad(macro.data());
}

}  // namespace qm
