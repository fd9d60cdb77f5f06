// QmShowAllComp: unhides every component of the current assembly.
#include "display/show_all_comp.h"

#include "display/hide_state.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"

namespace qm {

ProError QmShowAllComp() {
  const auto root = CurrentAssembly();
  if (!root) return PRO_TK_NO_ERROR;

  ComponentList components;
  const ProError status = CollectComponentsForShowAll(*root, &components);
  if (!Ok(status)) {
    ShowShortMessage(kNoComponentArray);
    return status;
  }
  if (components.empty()) {
    ShowShortMessage(kNoComponents);
    return PRO_TK_NO_ERROR;
  }
  LogCount("components", components.size());
  ShowComponents(components);
  components = ComponentList();
  RefreshDisplay(*root);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
