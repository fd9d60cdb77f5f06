// BoxSel: preselects parts by box.
#include "frame/commands/box_sel.h"

#include "frame/commands/box_selection.h"
#include "toolkit/status.h"

namespace qm {

ProError BoxSel() {
  return Ok(PreselectByBox("part")) ? PRO_TK_NO_ERROR : PRO_TK_USER_ABORT;
}

}  // namespace qm
