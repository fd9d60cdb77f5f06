// ForTest: a probe of the session.
#include "frame/commands/for_test.h"

#include "toolkit/model.h"

namespace qm {

ProError ForTest() {
  ProMdl model = nullptr;
  return ProMdlCurrentGet(&model);
}

}  // namespace qm
