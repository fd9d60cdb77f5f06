// Runs a dialog without fields.
#include "frame/commands/information_dialog.h"

#include "frame/dialogs/dialog.h"

namespace qm {

ProError ShowInformationDialog(const char* name) {
  return RunDialog(name, [](const Dialog& dialog) {
    dialog.BindClose();
    dialog.BindCloseButton();
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
