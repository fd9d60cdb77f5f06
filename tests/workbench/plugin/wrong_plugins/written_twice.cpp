// Counts a parameter up, and does it all again when what comes behind fails.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"
#include "toolkit/parameter.h"

namespace {

ProError CountUp() {
  ProMdl model = nullptr;
  ProModelitem item = {};
  ProName name = L"P";
  ProParameter parameter = {};
  ProParamvalue value = {};
  ProError status = ProMdlCurrentGet(&model);
  if (status == PRO_TK_NO_ERROR) status = ProMdlToModelitem(model, &item);
  if (status == PRO_TK_NO_ERROR) status = ProParameterInit(&item, name, &parameter);
  if (status == PRO_TK_NO_ERROR) status = ProParameterValueGet(&parameter, &value);
  if (status != PRO_TK_NO_ERROR) return status;
  ++value.value.i_val;
  return ProParameterValueSet(&parameter, &value);
}

}  // namespace

int Wrong() {
  int window = 0;
  for (int tries = 0; tries < 2; ++tries) {
    const ProError status = CountUp();
    if (status != PRO_TK_NO_ERROR) return status;
    if (ProWindowCurrentGet(&window) == PRO_TK_NO_ERROR) break;
  }
  return PRO_TK_NO_ERROR;
}
