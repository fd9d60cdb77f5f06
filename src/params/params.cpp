// QmParams: the parameter dialog. Its buttons' work stands in files of their own.
#include "params/params.h"

#include "frame/dialogs/dialog.h"
#include "params/outline_tool.h"
#include "params/param_actions.h"
#include "params/param_settings.h"
#include "params/sheet_size_tool.h"

namespace qm {
namespace {

void Bind(const Dialog& dialog) {
  dialog.BindButton<&AddParameters>("Add");
  dialog.BindButton<&UpdateParameters>("Update");
  dialog.BindButton<&DeleteParameters>("Delete");
  dialog.BindButton<&WriteOutlines>("QmOutline");
  dialog.BindButton<&WriteSheetSizes>("QmSheetSize");
  dialog.BindCloseButton();
  dialog.BindClose();
}

}  // namespace

ProError QmParams() {
  return RunDialog("QmParams", [](const Dialog& dialog) {
    Bind(dialog);
    LoadParamSettings(dialog);
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
