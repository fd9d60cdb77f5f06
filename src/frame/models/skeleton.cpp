// Asks the host.
#include "frame/models/skeleton.h"

#include "frame/messages/run_log.h"
#include "toolkit/status.h"

namespace qm {

bool IsSkeleton(ProMdl model) {
  ProBoolean is_skeleton = PRO_B_FALSE;
  const ProError status = ProMdlIsSkeleton(model, &is_skeleton);
  if (!Ok(status)) LogFailure(model, "ProMdlIsSkeleton", status);
  return Ok(status) && is_skeleton == PRO_B_TRUE;
}

}  // namespace qm
