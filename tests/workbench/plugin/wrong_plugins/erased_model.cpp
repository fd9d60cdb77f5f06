// Uses a model that it has erased.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProName name = L"scratch";
  ProSolid part = nullptr;
  ProSolidCreate(name, PRO_PART, &part);
  ProMdlErase(part);
  return ProMdlNameGet(part, name);
}
