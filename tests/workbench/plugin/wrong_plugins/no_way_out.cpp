// Shows a dialog that can be closed only while a model is current.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

namespace {

constexpr char kDialog[] = "AboutQm";

void Close(char* dialog, char*, ProAppData) {
  ProUIDialogExit(dialog, 0);
}

}  // namespace

int Wrong() {
  ProMdl model = nullptr;
  int answer = 0;
  ProMdlCurrentGet(&model);
  if (ProUIDialogCreate(kDialog, kDialog) != PRO_TK_NO_ERROR) return PRO_TK_GENERAL_ERROR;
  if (model != nullptr) ProUIDialogCloseActionSet(kDialog, &Close, nullptr);
  const int status = ProUIDialogActivate(kDialog, &answer);
  ProUIDialogDestroy(kDialog);
  return status;
}
