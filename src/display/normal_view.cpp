// QmNormalView: turns the view to the nearest orientation along the axes, at unit scale.
#include "display/normal_view.h"

#include "frame/models/model_view.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {

ProError QmNormalView() {
  ProMdl model = nullptr;
  const ProError status = ProMdlCurrentGet(&model);
  if (!Ok(status)) return status;
  return model != nullptr ? SnapView(model) : PRO_TK_E_NOT_FOUND;
}

}  // namespace qm
