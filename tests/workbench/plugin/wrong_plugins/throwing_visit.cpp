// Lets an exception out of a visit action.
#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProMdl assembly = nullptr;
  ProMdlCurrentGet(&assembly);
  return ProSolidFeatVisit(
      assembly, [](ProFeature*, ProError, ProAppData) -> ProError { throw 7; }, nullptr, nullptr);
}
