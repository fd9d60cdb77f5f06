// Gives the current model a parameter and does not look whether that went well.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"
#include "toolkit/parameter.h"

int Wrong() {
  ProMdl model = nullptr;
  ProModelitem item = {};
  ProMdlCurrentGet(&model);
  if (ProMdlToModelitem(model, &item) != PRO_TK_NO_ERROR) return PRO_TK_GENERAL_ERROR;
  ProName name = L"Q";
  ProParamvalue value = {};
  value.type = PRO_PARAM_INTEGER;
  value.value.i_val = 1;
  ProParameter parameter = {};
  ProParameterCreate(&item, name, &value, &parameter);
  return PRO_TK_NO_ERROR;
}
