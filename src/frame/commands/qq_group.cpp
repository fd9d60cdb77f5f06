// QmQQGroup: the dialog that says where to get help.
#include "frame/commands/qq_group.h"

#include "frame/commands/information_dialog.h"

namespace qm {

ProError QmQQGroup() {
  return ShowInformationDialog("QmQQGroup");
}

}  // namespace qm
