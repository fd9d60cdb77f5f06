// QmShowAllComp: unhides every component of the current assembly.
#include "display/show_all_comp.h"

#include "display/hide_state.h"
#include "frame/models/opening.h"

namespace qm {

ProError QmShowAllComp() {
  Opening opening = OpenCurrentAssembly(&CollectComponentsForShowAll, kNoComponents);
  if (opening.components.empty()) return opening.status;
  ShowComponents(opening.components);
  RefreshDisplay(&opening);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
