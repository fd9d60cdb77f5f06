// QmParams: the parameter dialog. Its buttons' work stands in files of their own.
#include "params/params.h"

#include "frame/dialogs/dialog.h"
#include "params/outline_tool.h"
#include "params/param_actions.h"
#include "params/param_settings.h"
#include "params/sheet_size_tool.h"

namespace qm {
namespace {

void Bind(const Dialog& dialog, StoredFields& fields) {
  dialog.BindButton<&AddParameters>("Add", fields);
  dialog.BindButton<&UpdateParameters>("Update", fields);
  dialog.BindButton<&DeleteParameters>("Delete", fields);
  dialog.BindButton<&WriteOutlines>("QmOutline", fields);
  dialog.BindButton<&WriteSheetSizes>("QmSheetSize", fields);
  dialog.BindCloseButton();
  dialog.BindClose();
}

}  // namespace

ProError QmParams() {
  StoredFields fields;
  return RunDialog("QmParams", [&](const Dialog& dialog) {
    Bind(dialog, fields);
    LoadParamSettings(dialog, &fields);
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
