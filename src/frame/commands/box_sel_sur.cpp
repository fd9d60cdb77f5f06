// QmBoxSelSur: preselects surfaces by box.
#include "frame/commands/box_sel_sur.h"

#include "frame/commands/box_selection.h"

namespace qm {

ProError QmBoxSelSur() {
  return PreselectByBox("surface");
}

}  // namespace qm
