// Gives a model where a selection is wanted.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProMdl model = nullptr;
  ProMdlCurrentGet(&model);
  ProModelitem item;
  return ProSelectionModelitemGet(static_cast<ProSelection>(model), &item);
}
