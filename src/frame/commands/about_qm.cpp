// AboutQm: the dialog that says what this toolbox is.
#include "frame/commands/about_qm.h"

#include "frame/commands/information_dialog.h"

namespace qm {

ProError AboutQm() {
  return ShowInformationDialog("AboutQm");
}

}  // namespace qm
