// QmParams: the parameter dialog. Its buttons' work stands in files of their own.
#include "params/params.h"

#include "frame/dialogs/dialog.h"
#include "params/outline_tool.h"
#include "params/param_actions.h"
#include "params/param_settings.h"
#include "params/sheet_size_tool.h"

namespace qm {

ProError QmParams() {
  Dialog dialog("QmParams");
  if (!dialog.Create()) return PRO_TK_GENERAL_ERROR;
  dialog.BindButton<&AddParameters>("Add");
  dialog.BindButton<&UpdateParameters>("Update");
  dialog.BindButton<&DeleteParameters>("Delete");
  dialog.BindButton<&WriteOutlines>("QmOutline");
  dialog.BindButton<&WriteSheetSizes>("QmSheetSize");
  dialog.BindCloseButton();
  dialog.BindClose();
  LoadParamSettings(dialog);
  const bool activated = dialog.Activate();
  dialog.Destroy();
  return activated ? PRO_TK_NO_ERROR : PRO_TK_GENERAL_ERROR;
}

}  // namespace qm
